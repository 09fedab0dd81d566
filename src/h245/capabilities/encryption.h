// Encryption of media, and its synchronisation.
#pragma once

#include <stdint.h>

#include "../common/non_standard.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct EncryptionMode {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Null("h233Encryption");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct MediaEncryptionAlgorithm {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    ObjectIdentifierValue algorithm;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.ObjectIdentifier("algorithm", m.algorithm);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct AuthenticationCapability {
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  uint32_t isExtended;
  uint32_t hasAntiSpamAlgorithm;
  ObjectIdentifierValue antiSpamAlgorithm;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandard) v.Record("nonStandard", m.nonStandard);
    if (m.hasAntiSpamAlgorithm) v.ObjectIdentifier("antiSpamAlgorithm", m.antiSpamAlgorithm);
  }
};

struct IntegrityCapability {
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandard) v.Record("nonStandard", m.nonStandard);
  }
};

struct EncryptionAuthenticationAndIntegrity {
  uint32_t hasEncryptionCapability;
  uint16_t encryptionCapabilityCount;
  MediaEncryptionAlgorithm* encryptionCapability;
  uint32_t hasAuthenticationCapability;
  AuthenticationCapability authenticationCapability;
  uint32_t hasIntegrityCapability;
  IntegrityCapability integrityCapability;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasEncryptionCapability) v.List("encryptionCapability", KELVRA_LIST(m.encryptionCapability));
    if (m.hasAuthenticationCapability) v.Record("authenticationCapability", m.authenticationCapability);
    if (m.hasIntegrityCapability) v.Record("integrityCapability", m.integrityCapability);
  }
};

struct H235SecurityCapability {
  EncryptionAuthenticationAndIntegrity encryptionAuthenticationAndIntegrity;
  uint16_t mediaCapability;  // an entry of the capability table
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("encryptionAuthenticationAndIntegrity", m.encryptionAuthenticationAndIntegrity);
    v.Number("mediaCapability", m.mediaCapability);
  }
};

struct EscrowData {
  ObjectIdentifierValue escrowID;
  OctetStringValue escrowValue;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("escrowID", m.escrowID);
    WalkOctets(v, "escrowValue", m.escrowValue, OctetNotation::kBits);
  }
};

struct EncryptionSync {
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  uint8_t synchFlag;
  OctetStringValue h235Key;
  uint32_t hasEscrowentry;
  uint16_t escrowentryCount;
  EscrowData* escrowentry;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandard) v.Record("nonStandard", m.nonStandard);
    v.Number("synchFlag", m.synchFlag);
    WalkOctets(v, "h235Key", m.h235Key);
    if (m.hasEscrowentry) v.List("escrowentry", KELVRA_LIST(m.escrowentry));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
