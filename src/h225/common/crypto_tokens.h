// Cryptographic tokens, integrity and security modes.
#pragma once

#include <stdint.h>

#include "../../h235/tokens.h"
#include "addresses.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct EncryptIntAlg {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    ObjectIdentifierValue isoAlgorithm;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.ObjectIdentifier("isoAlgorithm", m.isoAlgorithm);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct NonIsoIntegrityMechanism {
  uint8_t choiceTag;
  union {
    EncryptIntAlg hMACIso101182S;
    EncryptIntAlg hMACIso101182L;
    ObjectIdentifierValue hMACIso101183;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Null("hMAC-MD5");
      case 1: return v.Record("hMAC-iso10118-2-s", m.hMACIso101182S);
      case 2: return v.Record("hMAC-iso10118-2-l", m.hMACIso101182L);
      case 3: return v.ObjectIdentifier("hMAC-iso10118-3", m.hMACIso101183);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct IntegrityMechanism {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    ObjectIdentifierValue iso9797;
    NonIsoIntegrityMechanism nonIsoIM;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Null("digSig");
      case 2: return v.ObjectIdentifier("iso9797", m.iso9797);
      case 3: return v.Record("nonIsoIM", m.nonIsoIM);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct ICV {
  ObjectIdentifierValue algorithmOID;
  OctetStringValue icv;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("algorithmOID", m.algorithmOID);
    WalkOctets(v, "icv", m.icv, OctetNotation::kBits);
  }
};

struct CryptoH323Token {
  struct CryptoEPPwdHash {
    AliasAddress alias;
    uint32_t timeStamp;
    h235::HASHED token;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("alias", m.alias);
      v.Number("timeStamp", m.timeStamp);
      v.Record("token", m.token);
    }
  };

  struct CryptoGKPwdHash {
    BMPStringValue gatekeeperId;
    uint32_t timeStamp;
    h235::HASHED token;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Characters16("gatekeeperId", m.gatekeeperId);
      v.Number("timeStamp", m.timeStamp);
      v.Record("token", m.token);
    }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("cryptoEPPwdHash", m.cryptoEPPwdHash);
      case 1: return v.Record("cryptoGKPwdHash", m.cryptoGKPwdHash);
      case 2: return v.Record("cryptoEPPwdEncr", m.cryptoEPPwdEncr);
      case 3: return v.Record("cryptoGKPwdEncr", m.cryptoGKPwdEncr);
      case 4: return v.Record("cryptoEPCert", m.cryptoEPCert);
      case 5: return v.Record("cryptoGKCert", m.cryptoGKCert);
      case 6: return v.Record("cryptoFastStart", m.cryptoFastStart);
      case 7: return v.Record("nestedcryptoToken", m.nestedcryptoToken);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct SecurityServiceMode {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Null("none");
      case 2: return v.Null("default");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct SecurityCapabilities {
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  SecurityServiceMode encryption;
  SecurityServiceMode authenticaton;
  SecurityServiceMode integrity;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandard) v.Record("nonStandard", m.nonStandard);
    v.Record("encryption", m.encryption);
    v.Record("authenticaton", m.authenticaton);
    v.Record("integrity", m.integrity);
  }
};

struct H245Security {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    SecurityCapabilities tls;
    SecurityCapabilities ipsec;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Null("noSecurity");
      case 2: return v.Record("tls", m.tls);
      case 3: return v.Record("ipsec", m.ipsec);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
