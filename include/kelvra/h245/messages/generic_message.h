// Messages that are described by parameters, one layout for every class.
#pragma once

#include <stdint.h>

#include "../../walk.h"
#include "../common/generic_capability.h"

#include "../../begin_descriptions.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

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

#pragma pack(pop)

}  // namespace kelvra::h245

#include "../../end_descriptions.h"
