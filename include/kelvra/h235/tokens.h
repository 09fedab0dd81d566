// Tokens of H.235.
#pragma once

#include "../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h235 {

struct NonStandardParameter {
  ObjectIdentifierValue nonStandardIdentifier;
  OctetStringValue data;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(nonStandardIdentifier, ObjectIdentifier());
    KELVRA_MEMBER(data, OctetString());
  KELVRA_END
};

struct DHset {
  OctetStringValue halfkey;
  OctetStringValue modSize;
  OctetStringValue generator;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(halfkey, BitString(0, 2048));
    KELVRA_MEMBER(modSize, BitString(0, 2048));
    KELVRA_MEMBER(generator, BitString(0, 2048));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct ECpoint {
  uint32_t hasX;
  OctetStringValue x;
  uint32_t hasY;
  OctetStringValue y;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasX, x, BitString(0, 511));
    KELVRA_OPTIONAL(hasY, y, BitString(0, 511));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct ECKASDH {
  struct Eckasdhp {
    ECpoint publicKey;
    OctetStringValue modulus;
    ECpoint base;
    OctetStringValue weierstrassA;
    OctetStringValue weierstrassB;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(publicKey, Named("public-key", DefinedType()));
      KELVRA_MEMBER(modulus, BitString(0, 511));
      KELVRA_MEMBER(base, DefinedType());
      KELVRA_MEMBER(weierstrassA, BitString(0, 511));
      KELVRA_MEMBER(weierstrassB, BitString(0, 511));
    KELVRA_END
  };

  struct Eckasdh2 {
    ECpoint publicKey;
    OctetStringValue fieldSize;
    ECpoint base;
    OctetStringValue weierstrassA;
    OctetStringValue weierstrassB;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(publicKey, Named("public-key", DefinedType()));
      KELVRA_MEMBER(fieldSize, BitString(0, 511));
      KELVRA_MEMBER(base, DefinedType());
      KELVRA_MEMBER(weierstrassA, BitString(0, 511));
      KELVRA_MEMBER(weierstrassB, BitString(0, 511));
    KELVRA_END
  };

  uint8_t choiceTag;
  union {
    Eckasdhp eckasdhp;
    Eckasdh2 eckasdh2;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(eckasdhp, InlineType());
    KELVRA_ALTERNATIVE(eckasdh2, InlineType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct TypedCertificate {
  ObjectIdentifierValue type;
  OctetStringValue certificate;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(type, ObjectIdentifier());
    KELVRA_MEMBER(certificate, OctetString());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

KELVRA_NULL_CHOICE(NullChoice, AuthenticationBES, 2, "default", "radius");

struct AuthenticationMechanism {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    AuthenticationBES authenticationBES;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(dhExch);
    KELVRA_NULL(pwdSymEnc);
    KELVRA_NULL(pwdHash);
    KELVRA_NULL(certSign);
    KELVRA_NULL(ipsec);
    KELVRA_NULL(tls);
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(authenticationBES, DefinedType());
  KELVRA_END
};

struct ClearToken {
  ObjectIdentifierValue tokenOID;
  uint32_t hasTimeStamp;
  uint32_t timeStamp;
  uint32_t hasPassword;
  BMPStringValue password;
  uint32_t hasDhkey;
  DHset dhkey;
  uint32_t hasChallenge;
  OctetStringValue challenge;
  uint32_t hasRandom;
  int32_t random;
  uint32_t hasCertificate;
  TypedCertificate certificate;
  uint32_t hasGeneralID;
  BMPStringValue generalID;
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  uint32_t isExtended;
  uint32_t hasEckasdhkey;
  ECKASDH eckasdhkey;
  uint32_t hasSendersID;
  BMPStringValue sendersID;
  uint8_t reserved[87];

  KELVRA_SEQUENCE
    KELVRA_MEMBER(tokenOID, ObjectIdentifier());
    KELVRA_OPTIONAL(hasTimeStamp, timeStamp, Integer(1, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasPassword, password, BMPString(1, 128));
    KELVRA_OPTIONAL(hasDhkey, dhkey, DefinedType());
    KELVRA_OPTIONAL(hasChallenge, challenge, OctetString(8, 128));
    KELVRA_OPTIONAL(hasRandom, random, Integer());
    KELVRA_OPTIONAL(hasCertificate, certificate, DefinedType());
    KELVRA_OPTIONAL(hasGeneralID, generalID, BMPString(1, 128));
    KELVRA_OPTIONAL(hasNonStandard, nonStandard, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasEckasdhkey, eckasdhkey, DefinedType());
    KELVRA_ADDITION(hasSendersID, sendersID, BMPString(1, 128));
  KELVRA_END
};

struct Params {
  uint32_t hasRanInt;
  int32_t ranInt;
  uint32_t hasIv8;
  OctetStringValue iv8;
  uint32_t isExtended;
  uint32_t hasIv16;
  OctetStringValue iv16;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasRanInt, ranInt, Integer());
    KELVRA_OPTIONAL(hasIv8, iv8, OctetString(8));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasIv16, iv16, OctetString(16));
  KELVRA_END
};

struct SIGNED {
  OctetStringValue toBeSigned;
  ObjectIdentifierValue algorithmOID;
  Params paramS;
  OctetStringValue signature;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(toBeSigned, OctetString());
    KELVRA_MEMBER(algorithmOID, ObjectIdentifier());
    KELVRA_MEMBER(paramS, DefinedType());
    KELVRA_MEMBER(signature, BitString());
  KELVRA_END
};

struct ENCRYPTED {
  ObjectIdentifierValue algorithmOID;
  Params paramS;
  OctetStringValue encryptedData;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(algorithmOID, ObjectIdentifier());
    KELVRA_MEMBER(paramS, DefinedType());
    KELVRA_MEMBER(encryptedData, OctetString());
  KELVRA_END
};

struct HASHED {
  ObjectIdentifierValue algorithmOID;
  Params paramS;
  OctetStringValue hash;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(algorithmOID, ObjectIdentifier());
    KELVRA_MEMBER(paramS, DefinedType());
    KELVRA_MEMBER(hash, BitString());
  KELVRA_END
};

struct CryptoToken {
  struct CryptoEncryptedToken {
    ObjectIdentifierValue tokenOID;
    ENCRYPTED token;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(tokenOID, ObjectIdentifier());
      KELVRA_MEMBER(token, DefinedType());
    KELVRA_END
  };

  struct CryptoSignedToken {
    ObjectIdentifierValue tokenOID;
    SIGNED token;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(tokenOID, ObjectIdentifier());
      KELVRA_MEMBER(token, DefinedType());
    KELVRA_END
  };

  struct CryptoHashedToken {
    ObjectIdentifierValue tokenOID;
    ClearToken hashedVals;
    HASHED token;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(tokenOID, ObjectIdentifier());
      KELVRA_MEMBER(hashedVals, DefinedType());
      KELVRA_MEMBER(token, DefinedType());
    KELVRA_END
  };

  uint8_t choiceTag;
  union {
    CryptoEncryptedToken cryptoEncryptedToken;
    CryptoSignedToken cryptoSignedToken;
    CryptoHashedToken cryptoHashedToken;
    ENCRYPTED cryptoPwdEncr;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(cryptoEncryptedToken, InlineType());
    KELVRA_ALTERNATIVE(cryptoSignedToken, InlineType());
    KELVRA_ALTERNATIVE(cryptoHashedToken, InlineType());
    KELVRA_ALTERNATIVE(cryptoPwdEncr, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h235

#pragma pack(pop)
#include "../end_descriptions.h"
