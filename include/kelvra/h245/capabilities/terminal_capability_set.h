// What an endpoint can receive and send: the capability table, and which entries can be combined.
#pragma once

#include "capability.h"
#include "multiplex_capability.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct CapabilityTableEntry {
  uint16_t capabilityTableEntryNumber;
  uint32_t hasCapability;
  Capability capability;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(capabilityTableEntryNumber, Integer(1, 65535));
    KELVRA_OPTIONAL(hasCapability, capability, DefinedType());
  KELVRA_END
};

struct CapabilityDescriptor {
  uint8_t capabilityDescriptorNumber;
  uint32_t hasSimultaneousCapabilities;
  uint16_t simultaneousCapabilitiesCount;
  AlternativeCapabilitySet* simultaneousCapabilities;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(capabilityDescriptorNumber, Integer(0, 255));
    KELVRA_OPTIONAL_LIST(hasSimultaneousCapabilities, simultaneousCapabilities, SequenceOf(1, 256, DefinedType()));
  KELVRA_END
};

struct TerminalCapabilitySet {
  uint8_t sequenceNumber;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasMultiplexCapability;
  MultiplexCapability multiplexCapability;
  uint32_t hasCapabilityTable;
  uint16_t capabilityTableCount;
  CapabilityTableEntry* capabilityTable;
  uint32_t hasCapabilityDescriptors;
  uint16_t capabilityDescriptorCount;
  CapabilityDescriptor* capabilityDescriptors;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_MEMBER(protocolIdentifier, ObjectIdentifier());
    KELVRA_OPTIONAL(hasMultiplexCapability, multiplexCapability, DefinedType());
    KELVRA_OPTIONAL_LIST(hasCapabilityTable, capabilityTable, SequenceOf(1, 256, DefinedType()));
    if (!v.Optional(KELVRA_PLACE(hasCapabilityDescriptors), "capabilityDescriptors",
                    ListAt<decltype(m.capabilityDescriptorCount), decltype(m.capabilityDescriptors)>(
                        &m.capabilityDescriptorCount, &m.capabilityDescriptors),
                    SequenceOf(1, 256, DefinedType())))
      return false;
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct TerminalCapabilitySetReject {
  struct Cause {
    struct TableEntryCapacityExceeded {
      uint8_t choiceTag;
      union {
        uint16_t highestEntryNumberProcessed;
      };
      KELVRA_CHOICE(choiceTag)
        KELVRA_ALTERNATIVE(highestEntryNumberProcessed, Integer(1, 65535));
        KELVRA_NULL(noneProcessed);
      KELVRA_END
    };

    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      TableEntryCapacityExceeded tableEntryCapacityExceeded;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_NULL(unspecified);
      KELVRA_NULL(undefinedTableEntryUsed);
      KELVRA_NULL(descriptorCapacityExceeded);
      KELVRA_ALTERNATIVE(tableEntryCapacityExceeded, InlineType());
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  uint8_t sequenceNumber;
  Cause cause;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_MEMBER(cause, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
