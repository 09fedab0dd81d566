// The messages that each vendor defines, one layout for every class.
#pragma once

#include <stdint.h>

#include "../common/non_standard.h"
#include "private_message.h"

namespace kelvra::h245 {

// The classes of messages; the tag of H245MessageRecord.
enum MessageClass : uint8_t { kRequest = 0, kResponse = 1, kCommand = 2, kIndication = 3 };

#pragma pack(push, 1)

// The data of a private message is decoded instead of kept: `data` is null then.
struct H245NonStandardMessageRecord {
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t privateMessageDecoded;
  uint8_t messageClass;  // MessageClass
  PrivateMessage privateMessage;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("nonStandardData", m.nonStandardData);
    if (m.privateMessageDecoded) v.Record("privateMessage", m.privateMessage);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
