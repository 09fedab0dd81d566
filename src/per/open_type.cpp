#include "per/open_type.h"

#include "per/primitives.h"

namespace kelvra {

void OpenTypeBegin(PerReader& reader) {
  PerAlign(reader);
  OpenTypeRing& ring = reader.openTypes;
  ring.index = (ring.index + 1) % kOpenTypeLevels;
  ring.lengths[ring.index] = PerReadLength(reader);
  ring.starts[ring.index] = reader.position;
}

void OpenTypeEnd(PerReader& reader) {
  PerAlign(reader);
  if (reader.position == reader.end) reader.bitOffset = 0;
  OpenTypeRing& ring = reader.openTypes;
  reader.position = PerAdvance(ring.starts[ring.index], ring.lengths[ring.index]);
  ring.index = (ring.index + kOpenTypeLevels - 1) % kOpenTypeLevels;
}

void PerSkipOpenTypes(PerReader& reader, int32_t count) {
  for (int32_t i = 0; i < count && !PerAtEnd(reader); ++i) {
    const uint32_t length = PerReadLength(reader);
    reader.position = PerAdvance(reader.position, length);
  }
}

uint32_t PerReadOpenBoolean(PerReader& reader) {
  OpenTypeBegin(reader);
  const uint32_t value = PerReadBit(reader);
  OpenTypeEnd(reader);
  return value;
}

int32_t PerReadBitmapLength(PerReader& reader) { return static_cast<int32_t>(PerReadNormallySmall(reader) + 1); }

uint32_t PerReadAdditionBit(PerReader& reader, int32_t& additions) {
  if (additions <= 0) return 0;
  --additions;
  return PerReadBit(reader);
}

int32_t PerCountUnknownAdditions(PerReader& reader, int32_t additions) {
  int32_t count = 0;
  while (additions > 0 && !PerAtEnd(reader)) {
    const int64_t left = int64_t{PerOctetsLeft(reader)} * 8 - reader.bitOffset;
    int64_t bits = additions < left ? additions : left;
    if (bits > 32) bits = 32;
    count += __builtin_popcount(PerReadBits(reader, static_cast<uint32_t>(bits)));
    additions -= static_cast<int32_t>(bits);
  }
  return count;
}

void PerNoteUnknownAdditions(PerReader& reader, int32_t additions) {
  reader.extensionPresentCount = PerCountUnknownAdditions(reader, additions);
}

void PerSkipUnknownAdditions(PerReader& reader) { PerSkipOpenTypes(reader, reader.extensionPresentCount); }

void PerSkipExtensionAdditions(PerReader& reader) {
  PerNoteUnknownAdditions(reader, PerReadBitmapLength(reader));
  PerSkipUnknownAdditions(reader);
}

}  // namespace kelvra
