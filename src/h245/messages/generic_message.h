// Messages that are described by parameters, one layout for every class.
#pragma once

#include <stdint.h>

#include "../common/generic_capability.h"

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("messageIdentifier", m.messageIdentifier);
    if (m.hasSubMessageIdentifier) v.Number("subMessageIdentifier", m.subMessageIdentifier);
    if (m.hasMessageContent) v.List("messageContent", KELVRA_LIST(m.messageContent));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
