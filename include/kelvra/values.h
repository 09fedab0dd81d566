// The records for strings and object identifiers, shared by all families. All records are packed. A pointer is null
// if its count is 0; it may also be null with another count if the message was cut short. Nothing is
// NUL-terminated.
#pragma once

#include <stdint.h>

namespace kelvra {

#pragma pack(push, 1)

// OBJECT IDENTIFIER. The first subidentifier s is kept as the two arcs s / 40 and s % 40.
struct ObjectIdentifierValue {
  uint32_t count;  // arcs
  uint32_t* arcs;
};

// Any string of octets or 8-bit characters. `length` counts octets, characters or digit codes; for a
// BIT STRING it counts bits, and the block holds (length + 7) / 8 octets, first bit uppermost.
struct OctetStringValue {
  uint32_t length;
  uint8_t* data;
};

// BMPString: 16-bit code units in host order.
struct BMPStringValue {
  uint32_t length;  // characters
  uint16_t* data;
};

#pragma pack(pop)

}  // namespace kelvra
