// Open types (X.691 10.2) and the extension additions of a SEQUENCE (18.7 to 18.9) that travel in them.
#pragma once

#include <stdint.h>

#include "per/reader.h"

namespace kelvra {

// Enters an open type: its length and the place of its first octet go into the next slot of the ring.
void OpenTypeBegin(PerReader& reader);
// Leaves the innermost open type: the reader resumes behind it, whatever was consumed.
void OpenTypeEnd(PerReader& reader);
// Passes over `count` open types. A length past the end leaves the reader beyond it.
void PerSkipOpenTypes(PerReader& reader, int32_t count);

// A BOOLEAN that is an addition, in its open type.
uint32_t PerReadOpenBoolean(PerReader& reader);

// How many additions the bitmap of a SEQUENCE covers, 1 or more in a lawful message.
int32_t PerReadBitmapLength(PerReader& reader);
// The presence bit of known addition `index`, absent where the bitmap does not cover it.
uint32_t PerReadAdditionBit(PerReader& reader, int32_t bitmapLength, int32_t index);
// Reads the presence bits behind the `known` ones and counts those that are set.
int32_t PerCountUnknownAdditions(PerReader& reader, int32_t bitmapLength, int32_t known);
// The additions of a SEQUENCE of which none is known.
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
