// The command to send capabilities again.
#pragma once

#include <stdint.h>

#include "../../record/walk.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct SendTerminalCapabilitySet {
  struct SpecificRequest {
    uint32_t multiplexCapability;
    uint32_t hasCapabilityTableEntryNumbers;
    uint16_t capabilityTableEntryNumbersCount;
    uint16_t* capabilityTableEntryNumbers;
    uint32_t hasCapabilityDescriptorNumbers;
    uint16_t capabilityDescriptorNumbersCount;
    uint8_t* capabilityDescriptorNumbers;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Boolean("multiplexCapability", m.multiplexCapability);
      if (m.hasCapabilityTableEntryNumbers)
        v.Numbers("capabilityTableEntryNumbers", KELVRA_LIST(m.capabilityTableEntryNumbers));
      if (m.hasCapabilityDescriptorNumbers)
        v.Numbers("capabilityDescriptorNumbers", KELVRA_LIST(m.capabilityDescriptorNumbers));
    }
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    SpecificRequest specificRequest;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("specificRequest", m.specificRequest);
      case 1: return v.Null("genericRequest");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
