// The command to send capabilities again.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

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

    KELVRA_SEQUENCE
      KELVRA_MEMBER(multiplexCapability, Boolean());
      KELVRA_OPTIONAL_LIST(hasCapabilityTableEntryNumbers, capabilityTableEntryNumbers,
                           SequenceOf(1, 65535, Integer(1, 65535)));
      KELVRA_OPTIONAL_LIST(hasCapabilityDescriptorNumbers, capabilityDescriptorNumbers,
                           SequenceOf(1, 256, Integer(0, 255)));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    SpecificRequest specificRequest;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(specificRequest, InlineType());
    KELVRA_NULL(genericRequest);
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
