// What an endpoint can receive and send: the capability table, and which of its entries go together.
#pragma once

#include <stdint.h>

#include "capability.h"
#include "multiplex_capability.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct CapabilityTableEntry {
  uint16_t capabilityTableEntryNumber;
  uint32_t hasCapability;
  Capability capability;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("capabilityTableEntryNumber", m.capabilityTableEntryNumber);
    if (m.hasCapability) v.Record("capability", m.capability);
  }
};

struct CapabilityDescriptor {
  uint8_t capabilityDescriptorNumber;
  uint32_t hasSimultaneousCapabilities;
  uint16_t simultaneousCapabilitiesCount;
  AlternativeCapabilitySet* simultaneousCapabilities;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("capabilityDescriptorNumber", m.capabilityDescriptorNumber);
    if (m.hasSimultaneousCapabilities) v.List("simultaneousCapabilities", KELVRA_LIST(m.simultaneousCapabilities));
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasMultiplexCapability) v.Record("multiplexCapability", m.multiplexCapability);
    if (m.hasCapabilityTable) v.List("capabilityTable", KELVRA_LIST(m.capabilityTable));
    if (m.hasCapabilityDescriptors)
      v.List("capabilityDescriptors", KELVRA_COUNTED_LIST(m.capabilityDescriptorCount, m.capabilityDescriptors));
  }
};

struct TerminalCapabilitySetReject {
  struct Cause {
    struct TableEntryCapacityExceeded {
      uint8_t choiceTag;
      union {
        uint16_t highestEntryNumberProcessed;
      };

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        switch (m.choiceTag) {
          case 0: return v.Number("highestEntryNumberProcessed", m.highestEntryNumberProcessed);
          case 1: return v.Null("noneProcessed");
          default: return v.UnknownRoot(m.choiceTag);
        }
      }
    };

    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      TableEntryCapacityExceeded tableEntryCapacityExceeded;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Null("unspecified");
        case 1: return v.Null("undefinedTableEntryUsed");
        case 2: return v.Null("descriptorCapacityExceeded");
        case 3: return v.Record("tableEntryCapacityExceeded", m.tableEntryCapacityExceeded);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  uint8_t sequenceNumber;
  Cause cause;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
    v.Record("cause", m.cause);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
