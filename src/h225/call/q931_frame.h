// The Q.931 frame around the user-user information.
#pragma once

#include <stdint.h>

#include "kelvra/h225/call/q931_message.h"
#include "per/reader.h"

namespace kelvra::h225 {

inline constexpr uint8_t kUserUser = 0x7E;  // the identifier of the user-user element

inline constexpr int32_t kQ931Decoded = 0;
inline constexpr int32_t kQ931Rejected = -1;
inline constexpr int32_t kQ931BadArgument = -10;

// The octets of a frame, from the protocol discriminator. An element may claim more than the caller's buffer holds;
// octets past the buffer read as zero.
struct Q931Frame {
  const uint8_t* octets;
  uint32_t available;  // octets of the caller's buffer
  uint16_t length;     // octets that the frame claims

  uint8_t At(uint32_t index) const { return index < available ? octets[index] : uint8_t{0}; }
};

// The location of an information element.
struct Q931Element {
  uint16_t position;  // of the identifier, in the frame
  uint16_t length;    // of the contents
};

// Finds the first information element `identifier` whose header and length do not exceed the length of the whole frame.
// Returns kQ931Decoded; kQ931Rejected if there is none; kQ931BadArgument if the frame, its octets or `element` is null.
// Single-octet elements are skipped and never found. `element->position` is written only on success; `element->length`
// is that of the last element examined. DecodeQ931Frame does not use this: it finds all elements in one pass.
int32_t FindQ931Element(const Q931Frame* frame, uint8_t identifier, Q931Element* element);

// The frame after the TPKT header of a message.
Q931Frame FrameOf(const uint8_t* buffer, int32_t length);

// Sets up `reader` for the H323-UserInformation in a user-user element, after its protocol discriminator. The reader
// ends two octets past the element, so a value that fills the element to its last bit still stops before that end; a
// decode that reaches the end has failed.
void BeginUserInformation(PerReader& reader, const Q931Frame& frame, const Q931Element& element);

// Decodes the message after the 4 octets of the TPKT header into a cleared record.
int32_t DecodeQ931Frame(Q931MessageRecord* record, const uint8_t* buffer, int32_t length);

}  // namespace kelvra::h225
