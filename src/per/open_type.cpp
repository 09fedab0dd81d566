#include "per/open_type.h"

namespace kelvra {

void PerSkipOpenTypes(PerReader& reader, int32_t count) {
  for (int32_t i = 0; i < count; ++i) {
    if (PerAtEnd(reader)) return PerNoteCause(reader, PerCause::kEndOfMessage);
    const uint32_t length = PerReadLength(reader);
    reader.position = PerAdvance(reader.position, length);
  }
}

int32_t PerCountUnknownAdditions(PerReader& reader, int32_t additions) {
  int32_t count = 0;
  while (additions > 0 && !PerAtEnd(reader)) {
    const int64_t left = int64_t{PerOctetsLeft(reader)} * 8 - static_cast<int64_t>(reader.bitOffset);
    int64_t bits = additions < left ? additions : left;
    if (bits > 32) bits = 32;
    count += __builtin_popcount(PerReadBits(reader, static_cast<uint32_t>(bits)));
    additions -= static_cast<int32_t>(bits);
  }
  return count;
}

void PerSkipExtensionAdditions(PerReader& reader) {
  reader.extensionPresentCount = PerCountUnknownAdditions(reader, PerReadBitmapLength(reader));
  PerSkipOpenTypes(reader, reader.extensionPresentCount);
}

}  // namespace kelvra
