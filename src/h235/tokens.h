// Tokens of H.235.
#pragma once

#include <stdint.h>

#include "../record/null_choice.h"
#include "../record/walk.h"

namespace kelvra::h235 {

#pragma pack(push, 1)

struct NonStandardParameter {
  ObjectIdentifierValue nonStandardIdentifier;
  OctetStringValue data;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("nonStandardIdentifier", m.nonStandardIdentifier);
    WalkOctets(v, "data", m.data);
  }
};

struct DHset {
  OctetStringValue halfkey;
  OctetStringValue modSize;
  OctetStringValue generator;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    WalkOctets(v, "halfkey", m.halfkey, OctetNotation::kBits);
    WalkOctets(v, "modSize", m.modSize, OctetNotation::kBits);
    WalkOctets(v, "generator", m.generator, OctetNotation::kBits);
  }
};

struct ECpoint {
  uint32_t hasX;
  OctetStringValue x;
  uint32_t hasY;
  OctetStringValue y;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasX) WalkOctets(v, "x", m.x, OctetNotation::kBits);
    if (m.hasY) WalkOctets(v, "y", m.y, OctetNotation::kBits);
  }
};

struct ECKASDH {
  struct Eckasdhp {
    ECpoint publicKey;
    OctetStringValue modulus;
    ECpoint base;
    OctetStringValue weierstrassA;
    OctetStringValue weierstrassB;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("public-key", m.publicKey);
      WalkOctets(v, "modulus", m.modulus, OctetNotation::kBits);
      v.Record("base", m.base);
      WalkOctets(v, "weierstrassA", m.weierstrassA, OctetNotation::kBits);
      WalkOctets(v, "weierstrassB", m.weierstrassB, OctetNotation::kBits);
    }
  };

  struct Eckasdh2 {
    ECpoint publicKey;
    OctetStringValue fieldSize;
    ECpoint base;
    OctetStringValue weierstrassA;
    OctetStringValue weierstrassB;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("public-key", m.publicKey);
      WalkOctets(v, "fieldSize", m.fieldSize, OctetNotation::kBits);
      v.Record("base", m.base);
      WalkOctets(v, "weierstrassA", m.weierstrassA, OctetNotation::kBits);
      WalkOctets(v, "weierstrassB", m.weierstrassB, OctetNotation::kBits);
    }
  };

  uint8_t choiceTag;
  union {
    Eckasdhp eckasdhp;
    Eckasdh2 eckasdh2;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("eckasdhp", m.eckasdhp);
      case 1: return v.Record("eckasdh2", m.eckasdh2);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct TypedCertificate {
  ObjectIdentifierValue type;
  OctetStringValue certificate;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("type", m.type);
    WalkOctets(v, "certificate", m.certificate);
  }
};

struct AuthenticationBESNames {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"default", "radius"};
};
using AuthenticationBES = NullChoice<AuthenticationBESNames>;

struct AuthenticationMechanism {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    AuthenticationBES authenticationBES;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("authenticationBES", m.authenticationBES);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Null("dhExch");
      case 1: return v.Null("pwdSymEnc");
      case 2: return v.Null("pwdHash");
      case 3: return v.Null("certSign");
      case 4: return v.Null("ipsec");
      case 5: return v.Null("tls");
      case 6: return v.Record("nonStandard", m.nonStandard);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("tokenOID", m.tokenOID);
    if (m.hasTimeStamp) v.Number("timeStamp", m.timeStamp);
    if (m.hasPassword) v.Characters16("password", m.password);
    if (m.hasDhkey) v.Record("dhkey", m.dhkey);
    if (m.hasChallenge) WalkOctets(v, "challenge", m.challenge);
    if (m.hasRandom) v.Number("random", m.random);
    if (m.hasCertificate) v.Record("certificate", m.certificate);
    if (m.hasGeneralID) v.Characters16("generalID", m.generalID);
    if (m.hasNonStandard) v.Record("nonStandard", m.nonStandard);
    if (m.hasEckasdhkey) v.Record("eckasdhkey", m.eckasdhkey);
    if (m.hasSendersID) v.Characters16("sendersID", m.sendersID);
  }
};

struct Params {
  uint32_t hasRanInt;
  int32_t ranInt;
  uint32_t hasIv8;
  OctetStringValue iv8;
  uint32_t isExtended;
  uint32_t hasIv16;
  OctetStringValue iv16;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasRanInt) v.Number("ranInt", m.ranInt);
    if (m.hasIv8) WalkOctets(v, "iv8", m.iv8);
    if (m.hasIv16) WalkOctets(v, "iv16", m.iv16);
  }
};

struct SIGNED {
  OctetStringValue toBeSigned;
  ObjectIdentifierValue algorithmOID;
  Params paramS;
  OctetStringValue signature;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    WalkOctets(v, "toBeSigned", m.toBeSigned);
    v.ObjectIdentifier("algorithmOID", m.algorithmOID);
    v.Record("paramS", m.paramS);
    WalkOctets(v, "signature", m.signature, OctetNotation::kBits);
  }
};

struct ENCRYPTED {
  ObjectIdentifierValue algorithmOID;
  Params paramS;
  OctetStringValue encryptedData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("algorithmOID", m.algorithmOID);
    v.Record("paramS", m.paramS);
    WalkOctets(v, "encryptedData", m.encryptedData);
  }
};

struct HASHED {
  ObjectIdentifierValue algorithmOID;
  Params paramS;
  OctetStringValue hash;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("algorithmOID", m.algorithmOID);
    v.Record("paramS", m.paramS);
    WalkOctets(v, "hash", m.hash, OctetNotation::kBits);
  }
};

struct CryptoToken {
  struct CryptoEncryptedToken {
    ObjectIdentifierValue tokenOID;
    ENCRYPTED token;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.ObjectIdentifier("tokenOID", m.tokenOID);
      v.Record("token", m.token);
    }
  };

  struct CryptoSignedToken {
    ObjectIdentifierValue tokenOID;
    SIGNED token;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.ObjectIdentifier("tokenOID", m.tokenOID);
      v.Record("token", m.token);
    }
  };

  struct CryptoHashedToken {
    ObjectIdentifierValue tokenOID;
    ClearToken hashedVals;
    HASHED token;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.ObjectIdentifier("tokenOID", m.tokenOID);
      v.Record("hashedVals", m.hashedVals);
      v.Record("token", m.token);
    }
  };

  uint8_t choiceTag;
  union {
    CryptoEncryptedToken cryptoEncryptedToken;
    CryptoSignedToken cryptoSignedToken;
    CryptoHashedToken cryptoHashedToken;
    ENCRYPTED cryptoPwdEncr;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("cryptoEncryptedToken", m.cryptoEncryptedToken);
      case 1: return v.Record("cryptoSignedToken", m.cryptoSignedToken);
      case 2: return v.Record("cryptoHashedToken", m.cryptoHashedToken);
      case 3: return v.Record("cryptoPwdEncr", m.cryptoPwdEncr);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h235
