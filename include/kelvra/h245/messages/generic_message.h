// Generic messages, described by parameters: one layout for every class.
#pragma once

#include "../common/generic_capability.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct GenericMessage {
  CapabilityIdentifier messageIdentifier;
  uint32_t hasSubMessageIdentifier;
  uint8_t subMessageIdentifier;
  uint32_t hasMessageContent;
  uint8_t messageContentCount;
  GenericParameter* messageContent;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(messageIdentifier, DefinedType());
    KELVRA_OPTIONAL(hasSubMessageIdentifier, subMessageIdentifier, Integer(0, 127));
    KELVRA_OPTIONAL_LIST(hasMessageContent, messageContent, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
