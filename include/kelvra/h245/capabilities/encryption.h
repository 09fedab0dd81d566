// Encryption of media, and its synchronisation.
#pragma once

#include "../common/non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct EncryptionMode {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_NULL(h233Encryption);
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct MediaEncryptionAlgorithm {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    ObjectIdentifierValue algorithm;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(algorithm, ObjectIdentifier());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct AuthenticationCapability {
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  uint32_t isExtended;
  uint32_t hasAntiSpamAlgorithm;
  ObjectIdentifierValue antiSpamAlgorithm;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandard, nonStandard, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasAntiSpamAlgorithm, antiSpamAlgorithm, ObjectIdentifier());
  KELVRA_END
};

struct IntegrityCapability {
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandard, nonStandard, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL_LIST(hasEncryptionCapability, encryptionCapability, SequenceOf(1, 256, DefinedType()));
    KELVRA_OPTIONAL(hasAuthenticationCapability, authenticationCapability, DefinedType());
    KELVRA_OPTIONAL(hasIntegrityCapability, integrityCapability, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H235SecurityCapability {
  EncryptionAuthenticationAndIntegrity encryptionAuthenticationAndIntegrity;
  uint16_t mediaCapability;  // an entry of the capability table
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(encryptionAuthenticationAndIntegrity, DefinedType());
    KELVRA_MEMBER(mediaCapability, Integer(1, 65535));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct EscrowData {
  ObjectIdentifierValue escrowID;
  OctetStringValue escrowValue;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(escrowID, ObjectIdentifier());
    KELVRA_MEMBER(escrowValue, BitString(1, 65535));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandard, nonStandard, DefinedType());
    KELVRA_MEMBER(synchFlag, Integer(0, 255));
    KELVRA_MEMBER(h235Key, OctetString(1, 65535));
    KELVRA_OPTIONAL_LIST(hasEscrowentry, escrowentry, SequenceOf(1, 256, DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
