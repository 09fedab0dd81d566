// The private messages that a NonStandardMessage of the identifier 86/1/1 carries; docs/private_messages.md
// has their ASN.1.
#pragma once

#include <stdint.h>

#include "../../record/walk.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

// The four sets, one for each message class, are alike.
struct PrivateMessage {
  uint8_t messageType;
  uint32_t hasPayload;
  OctetStringValue payload;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("messageType", m.messageType);
    if (m.hasPayload) WalkOctets(v, "payload", m.payload);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
