// The private messages in a NonStandardMessage with the identifier 86/1/1; docs/private_messages.md has their
// ASN.1.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

// All four message classes use this layout.
struct PrivateMessage {
  uint8_t messageType;
  uint32_t hasPayload;
  OctetStringValue payload;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(messageType, Integer(0, 255));
    KELVRA_OPTIONAL(hasPayload, payload, OctetString());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
