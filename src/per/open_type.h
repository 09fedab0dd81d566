// Open types (X.691 10.2) and the extension additions of a SEQUENCE (18.7 to 18.9), which they contain.
#pragma once

#include <stdint.h>

#include "per/primitives.h"
#include "per/reader.h"

namespace kelvra {

// Enters an open type: stores its length and the address of its first octet in the next slot of the ring.
inline void OpenTypeBegin(PerReader& reader) {
  PerAlign(reader);
  OpenTypeRing& ring = reader.openTypes;
  ring.index = ring.index == kOpenTypeLevels - 1 ? 0 : ring.index + 1;
  ring.lengths[ring.index] = PerReadLength(reader);
  ring.starts[ring.index] = reader.position;
}

// Leaves the innermost open type: the reader resumes past it, whatever was consumed, unless too much of the message
// has been reread.
inline void OpenTypeEnd(PerReader& reader) {
  OpenTypeRing& ring = reader.openTypes;
  const uint8_t* after = PerAdvance(ring.starts[ring.index], ring.lengths[ring.index]);
  ring.index = ring.index == 0 ? kOpenTypeLevels - 1 : ring.index - 1;
  if (after < PerBoundary(reader)) [[unlikely]]
    return PerMoveBack(reader, after);
  if (reader.position <= reader.end) reader.bitOffset = 0;
  reader.position = after;
}

// Skips `count` open types. A length past the end leaves the reader beyond the end.
void PerSkipOpenTypes(PerReader& reader, int32_t count);

// Skips the open type of a known NULL. Unlike an unknown one, it is entered like any other and takes a slot of the
// ring.
inline void PerPassOverOpenType(PerReader& reader) {
  OpenTypeBegin(reader);
  OpenTypeEnd(reader);
}

// --- The additions of a SEQUENCE ---

// How many presence bits the bitmap holds, 1 or more in a conforming message.
inline int32_t PerReadBitmapLength(PerReader& reader) { return static_cast<int32_t>(PerReadNormallySmall(reader) + 1); }

// The presence bits of the next `known` additions, 1 to 32; those past the bitmap are 0. `additions` counts down the
// bits left: the bits after the known ones belong to unknown additions.
[[gnu::always_inline]] inline PerFlags PerReadKnownAdditions(PerReader& reader, int32_t& additions, int32_t known) {
  const int32_t count = additions < known ? additions : known;
  if (count <= 0) return PerFlags(0);
  additions -= count;
  return PerReadFlags(reader, static_cast<uint32_t>(count), static_cast<uint32_t>(known));
}

// Reads the remaining bits and returns how many are set.
int32_t PerCountUnknownAdditions(PerReader& reader, int32_t additions);
// Skips the additions of a SEQUENCE with no known ones. Their number is stored in the counter that all SEQUENCEs of an
// H.225.0 message share.
void PerSkipExtensionAdditions(PerReader& reader);

// Counts a level of a recursive type while it lives.
class RecursionLevel {
 public:
  explicit RecursionLevel(PerReader& reader) : reader_(reader) { ++reader_.depth; }
  ~RecursionLevel() { --reader_.depth; }
  RecursionLevel(const RecursionLevel&) = delete;
  RecursionLevel& operator=(const RecursionLevel&) = delete;

  bool TooDeep() const { return reader_.depth > kMaximumDepth; }

 private:
  PerReader& reader_;
};

}  // namespace kelvra
