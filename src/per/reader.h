// The cursor over one message, read most significant bit first (X.691, aligned variant).
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace kelvra {

// How deep recursive types (GenericParameter, DataType under itself, ...) are followed. A message
// that nests deeper is malformed.
inline constexpr uint32_t kMaximumDepth = 32;

// What the blocks of one message may claim in all: it keeps a datagram of a stranger from taking the memory
// of its host. What equipment sends stays far below; only a message made of some 30 kB of the smallest
// elements with the largest records exceeds it. A block past it is refused as if the heap had refused it.
inline constexpr uint32_t kMaximumMessageMemory = 16U << 20;

inline constexpr uint32_t kOpenTypeLevels = 10;

// The open types being decoded, innermost at `index`. An eleventh level takes the slot of the first.
struct OpenTypeRing {
  uint32_t index;
  uint32_t lengths[kOpenTypeLevels];
  const uint8_t* starts[kOpenTypeLevels];
};

// There is no error flag: a read that fails moves `position` to `end`, and from then on every read
// yields 0. An open type's length can carry `position` beyond `end`, which counts as exhausted.
struct PerReader {
  const uint8_t* position;  // the octet that holds the next unread bit
  uint32_t bitOffset;       // bits of that octet already consumed, 0 to 7
  const uint8_t* end;

  const uint8_t* readable;  // end of the caller's octets; those from here to `end` read as zero

  // State that belongs to the decoding of this one message.
  OpenTypeRing openTypes;
  int32_t extensionPresentCount;  // unknown additions to skip, as the last bitmap left it
  uint32_t depth;                 // recursive types entered
  uint32_t allocated;             // octets claimed so far
};

// Over `length` octets at `buffer`, with fresh decoding state.
void PerReaderInit(PerReader& reader, const uint8_t* buffer, uint32_t length);

// `pointer` plus `count`, held at the last address instead of wrapping round.
const uint8_t* PerAdvance(const uint8_t* pointer, uint32_t count);

inline bool PerAtEnd(const PerReader& reader) { return reader.position >= reader.end; }

// Whole octets from the position on, the one that is partly consumed included.
inline uint32_t PerOctetsLeft(const PerReader& reader) {
  return PerAtEnd(reader) ? 0
                          : static_cast<uint32_t>(reinterpret_cast<uintptr_t>(reader.end) -
                                                  reinterpret_cast<uintptr_t>(reader.position));
}

inline void PerMoveToEnd(PerReader& reader) {
  reader.position = reader.end;
  reader.bitOffset = 0;
}

// The octet at `position` plus `index`, zero outside the caller's buffer.
uint8_t PerPeekOctet(const PerReader& reader, uint32_t index);

// The next `count` bits (0 to 32), or 0 and the reader at its end when there are not as many.
uint32_t PerReadBits(PerReader& reader, uint32_t count);

// Advances by `count` bits; past the end the reader stops there.
void PerSkipBits(PerReader& reader, uint32_t count);

// Advances to the next octet boundary.
void PerAlign(PerReader& reader);

inline uint32_t PerReadBit(PerReader& reader) { return PerAtEnd(reader) ? 0 : PerReadBits(reader, 1); }

}  // namespace kelvra
