// Cryptographic tokens, integrity and security modes.
#pragma once

#include "../../h235/tokens.h"
#include "addresses.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct EncryptIntAlg {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    ObjectIdentifierValue isoAlgorithm;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(isoAlgorithm, ObjectIdentifier());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct NonIsoIntegrityMechanism {
  uint8_t choiceTag;
  union {
    EncryptIntAlg hMACIso101182S;
    EncryptIntAlg hMACIso101182L;
    ObjectIdentifierValue hMACIso101183;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(hMAC-MD5);
    KELVRA_ALTERNATIVE(hMACIso101182S, Named("hMAC-iso10118-2-s", DefinedType()));
    KELVRA_ALTERNATIVE(hMACIso101182L, Named("hMAC-iso10118-2-l", DefinedType()));
    KELVRA_ALTERNATIVE(hMACIso101183, Named("hMAC-iso10118-3", ObjectIdentifier()));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct IntegrityMechanism {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    ObjectIdentifierValue iso9797;
    NonIsoIntegrityMechanism nonIsoIM;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_NULL(digSig);
    KELVRA_ALTERNATIVE(iso9797, ObjectIdentifier());
    KELVRA_ALTERNATIVE(nonIsoIM, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct ICV {
  ObjectIdentifierValue algorithmOID;
  OctetStringValue icv;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(algorithmOID, ObjectIdentifier());
    KELVRA_MEMBER(icv, BitString());
  KELVRA_END
};

struct CryptoH323Token {
  struct CryptoEPPwdHash {
    AliasAddress alias;
    uint32_t timeStamp;
    h235::HASHED token;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(alias, DefinedType());
      KELVRA_MEMBER(timeStamp, Integer(1, kUnsigned32Maximum));
      KELVRA_MEMBER(token, DefinedType());
    KELVRA_END
  };

  struct CryptoGKPwdHash {
    BMPStringValue gatekeeperId;
    uint32_t timeStamp;
    h235::HASHED token;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(gatekeeperId, DefinedType(BMPString(1, 128)));
      KELVRA_MEMBER(timeStamp, Integer(1, kUnsigned32Maximum));
      KELVRA_MEMBER(token, DefinedType());
    KELVRA_END
  };

  uint8_t choiceTag;
  union {
    CryptoEPPwdHash cryptoEPPwdHash;
    CryptoGKPwdHash cryptoGKPwdHash;
    h235::ENCRYPTED cryptoEPPwdEncr;
    h235::ENCRYPTED cryptoGKPwdEncr;
    h235::SIGNED cryptoEPCert;
    h235::SIGNED cryptoGKCert;
    h235::SIGNED cryptoFastStart;
    h235::CryptoToken nestedcryptoToken;
    uint8_t reserved[429];
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(cryptoEPPwdHash, InlineType());
    KELVRA_ALTERNATIVE(cryptoGKPwdHash, InlineType());
    KELVRA_ALTERNATIVE(cryptoEPPwdEncr, DefinedType());
    KELVRA_ALTERNATIVE(cryptoGKPwdEncr, DefinedType());
    KELVRA_ALTERNATIVE(cryptoEPCert, DefinedType());
    KELVRA_ALTERNATIVE(cryptoGKCert, DefinedType());
    KELVRA_ALTERNATIVE(cryptoFastStart, DefinedType());
    KELVRA_ALTERNATIVE(nestedcryptoToken, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct SecurityServiceMode {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_NULL(none);
    KELVRA_NULL(default);
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct SecurityCapabilities {
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  SecurityServiceMode encryption;
  SecurityServiceMode authenticaton;
  SecurityServiceMode integrity;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandard, nonStandard, DefinedType());
    KELVRA_MEMBER(encryption, DefinedType());
    KELVRA_MEMBER(authenticaton, DefinedType());
    KELVRA_MEMBER(integrity, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H245Security {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    SecurityCapabilities tls;
    SecurityCapabilities ipsec;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_NULL(noSecurity);
    KELVRA_ALTERNATIVE(tls, DefinedType());
    KELVRA_ALTERNATIVE(ipsec, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
