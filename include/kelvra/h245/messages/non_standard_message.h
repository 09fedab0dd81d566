// Vendor-defined messages: one layout for every class.
#pragma once

#include "../common/non_standard.h"
#include "private_message.h"

#include "../../begin_descriptions.h"

namespace kelvra::h245 {

// The classes of messages; the tag of H245MessageRecord.
enum MessageClass : uint8_t { kRequest = 0, kResponse = 1, kCommand = 2, kIndication = 3 };

// The nonStandard alternative of a class of messages.
struct NonStandardMessageKind : asn1::DefinedTypeKind {
  MessageClass messageClass;
};
constexpr NonStandardMessageKind NonStandardMessage(MessageClass messageClass) { return {{}, messageClass}; }

#pragma pack(push, 1)

// The data of a private message is decoded, not kept: `data` is then null. The decoder is written by hand.
struct H245NonStandardMessageRecord {
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t privateMessageDecoded;
  uint8_t messageClass;  // MessageClass
  PrivateMessage privateMessage;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(nonStandardData, DefinedType());
    KELVRA_OPTIONAL(privateMessageDecoded, privateMessage, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

#pragma pack(pop)

}  // namespace kelvra::h245

#include "../../end_descriptions.h"
