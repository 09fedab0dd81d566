#include "per/primitives.h"

#include "codec/memory.h"
#include "codec/trace.h"

namespace kelvra {
namespace {

enum RefusalLine : int32_t { kBlockRefused = 192, kFragmented = 275 };

uint32_t Minimum(uint32_t a, uint32_t b) { return a < b ? a : b; }

// Whether nothing is left for a value of at least one bit.
inline bool IsMissing(PerReader& reader) {
  if (!PerAtEnd(reader)) return false;
  PerNoteCause(reader, PerCause::kEndOfMessage);
  return true;
}

// Whether a string of `count` units is not empty and has all the octets that it needs.
inline bool HasString(PerReader& reader, uint32_t count, bool hasOctets) {
  if (count == 0 || IsMissing(reader)) return false;
  if (!hasOctets) PerMoveToEnd(reader, PerCause::kLengthPastEnd);
  return hasOctets;
}

uint64_t LoadWord(const uint8_t* octets) {
  uint64_t word = 0;
  __builtin_memcpy(&word, octets, sizeof word);
  return word;
}

// Keeps the first `count` octets in memory, 1 to 8, and clears the rest.
uint64_t KeepFirstOctets(uint64_t word, uint32_t count) {
  const uint32_t dropped = 64 - count * 8;
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
  return word << dropped;
#else
  return word >> dropped;
#endif
}

// Copies 1 or more octets. Most strings are short, and copying these is cheaper than a call.
inline void CopyString(uint8_t* to, const uint8_t* from, uint32_t count) {
  if (count > 16) {
    CodecCopy(to, from, count);
  } else if (count >= 8) {
    const uint64_t last = LoadWord(from + count - 8);
    const uint64_t first = LoadWord(from);
    __builtin_memcpy(to, &first, sizeof first);
    __builtin_memcpy(to + count - 8, &last, sizeof last);
  } else {
    for (uint32_t i = 0; i < count; ++i) to[i] = from[i];
  }
}

// Takes `count` octets; those outside the caller's buffer are left zero.
[[gnu::noinline]] void TakeOctetsAtEdge(PerReader& reader, uint8_t* octets, uint32_t count) {
  if (count == 0) return;
  CodecCopy(octets, reader.position, Minimum(count, PerReadableOctets(reader)));
  PerSkipBits(reader, count * 8);
}

// Copies the next `count` octets of an aligned reader.
inline void TakeOctets(PerReader& reader, uint8_t* octets, uint32_t count) {
  if (count != 0 && count <= PerOctetsInside(reader)) [[likely]] {
    CopyString(octets, reader.position, count);
    reader.position += count;
  } else {
    TakeOctetsAtEdge(reader, octets, count);
  }
}

// The character of kWidth bits at `index` in a run that begins at `octets`.
template <uint32_t kWidth>
uint32_t CharacterAt(const uint8_t* octets, uint32_t index) {
  if constexpr (kWidth == 4) return octets[index / 2] >> (index % 2 == 0 ? 4 : 0) & 15;
  if constexpr (kWidth == 8) return octets[index];
  if constexpr (kWidth == 16) return PerLoad16(octets + uint64_t{index} * 2);
}

// Reads `count` characters of kWidth bits and stores each mapped. Characters past the end of the input stay 0.
template <class Character, uint32_t kWidth, class Map>
Character* ReadCharacters(PerReader& reader, uint32_t count, Map map) {
  auto* characters = static_cast<Character*>(PerAllocate(reader, uint64_t{count} * sizeof(Character)));
  if (characters == nullptr) return nullptr;
  PerAlign(reader);
  const uint64_t bits = uint64_t{count} * kWidth;
  if (bits <= uint64_t{PerOctetsInside(reader)} * 8) [[likely]] {
    for (uint32_t i = 0; i < count; ++i) {
      characters[i] = static_cast<Character>(map(CharacterAt<kWidth>(reader.position, i)));
    }
    reader.position += bits / 8;
    reader.bitOffset = static_cast<BitOffset>(bits % 8);
    return characters;
  }
  for (uint32_t i = 0; i < count && !IsMissing(reader); ++i) {
    characters[i] = static_cast<Character>(map(PerReadBitsAtEdge(reader, kWidth)));
  }
  return characters;
}

template <class Map>
uint8_t* ReadNibbleString(PerReader& reader, uint32_t count, Map map) {
  if (!HasString(reader, count, count / 2 <= PerOctetsLeft(reader) + 1)) return nullptr;
  return ReadCharacters<uint8_t, 4>(reader, count, map);
}

uint32_t PrintableCharacter(uint32_t index) {
  if (index < 22) return static_cast<uint8_t>(" '()+,-./0123456789:=?"[index]);
  if (index >= 41 && index <= 47) return index + 43;  // T to Z
  if (index >= 48 && index <= 73) return index + 49;  // a to z
  return ' ';
}

// How many of `count` octets end a subidentifier. `inside` octets can be read.
uint32_t CountSubidentifiers(const uint8_t* octets, uint32_t count, uint32_t inside) {
  uint32_t subidentifiers = 0;
  uint32_t done = 0;
  // Eight at a time: each octet with a clear high bit becomes a 1, and the multiplication sums them in the top octet.
  for (; done < count && inside - done >= 8; done += 8) {
    const uint32_t beyond = count - done < 8 ? 8 - (count - done) : 0;
    const uint64_t last = ~LoadWord(octets + done) >> 7 & 0x0101010101010101;
    subidentifiers += static_cast<uint32_t>(KeepFirstOctets(last, 8 - beyond) * 0x0101010101010101 >> 56);
  }
  for (; done < count; ++done) subidentifiers += octets[done] < 0x80 ? 1 : 0;
  return subidentifiers;
}

// Reads `count` arcs, 2 or more, from `count` - 1 subidentifiers; returns where they end.
const uint8_t* TakeArcs(uint32_t* arcs, uint32_t count, const uint8_t* octets) {
  for (uint32_t i = 1; i < count; ++i) {
    uint32_t octet = *octets++;
    uint32_t value = octet & 0x7F;
    while (octet >= 0x80) {
      octet = *octets++;
      value = value << 7 | (octet & 0x7F);
    }
    arcs[i] = value;
  }
  arcs[0] = arcs[1] / 40;
  arcs[1] %= 40;
  return octets;
}

// Reads the arcs of an object identifier at any position.
void ReadArcs(PerReader& reader, uint32_t* arcs, uint32_t count) {
  const uint32_t first = PerReadSubidentifier(reader);
  arcs[0] = first / 40;
  // Contents in which no subidentifier ends count as one arc, so there is no room for the second.
  if (count > 1) arcs[1] = first % 40;
  for (uint32_t i = 2; i < count && !PerAtEnd(reader); ++i) arcs[i] = PerReadSubidentifier(reader);
}

}  // namespace

void PerRefuseBlock(PerReader& reader, uint64_t size) {
  CodecTrace(kTraceDecoder, kTraceError, kReasonAllocation, kSourceStrings, kBlockRefused);
  PerMoveToEnd(reader, size > reader.allowance ? PerCause::kTooMuchMemory : PerCause::kRefusedBlock);
}

uint32_t PerReadConstrainedWholeNumberAtEdge(PerReader& reader, uint32_t range) {
  if (IsMissing(reader)) return 0;
  if (range <= 65536) {
    PerAlign(reader);
    return PerReadBits(reader, range == 256 ? 8 : 16);
  }
  const uint32_t octets = PerReadBits(reader, 2) + 1;
  PerAlign(reader);
  // A range of three octets cannot have a fourth; the number reads as 0 and no octet is consumed.
  if (range <= 1U << 24 && octets == 4) return 0;
  return PerReadBits(reader, octets * 8);
}

uint32_t PerReadLengthAtEdge(PerReader& reader) {
  if (IsMissing(reader)) return 0;
  PerAlign(reader);
  if (PerReadBit(reader) == 0) return PerReadBits(reader, 7);
  if (PerReadBit(reader) == 0) return PerReadBits(reader, 14);
  CodecTrace(kTraceDecoder, kTraceError, kReasonDecode, kSourceLength, kFragmented);
  PerMoveToEnd(reader, PerCause::kFragmentedLength);
  return 0;
}

uint32_t PerReadNormallySmallAtEdge(PerReader& reader) {
  if (PerReadBit(reader) == 0) return PerReadBits(reader, 6);
  const uint32_t octets = PerReadLength(reader);
  if (octets > 4) {
    PerMoveToEnd(reader, PerCause::kNumberTooWide);
    return 0;
  }
  return PerReadBits(reader, octets * 8);
}

uint32_t PerReadUnsignedWithLength(PerReader& reader) {
  const uint32_t octets = PerReadLength(reader);
  return PerAtEnd(reader) ? 0 : PerReadBits(reader, octets * 8);
}

int32_t PerReadInteger(PerReader& reader) {
  const uint32_t octets = PerReadLength(reader);
  if (octets > 4) {
    PerMoveToEnd(reader, PerCause::kNumberTooWide);
    return 0;
  }
  if (octets == 0) return 0;
  const uint32_t unused = 32 - octets * 8;
  return static_cast<int32_t>(PerReadBits(reader, octets * 8) << unused) >> unused;
}

uint8_t* PerReadOctets(PerReader& reader, uint32_t count) {
  if (!HasString(reader, count, count <= PerOctetsLeft(reader))) return nullptr;
  auto* octets = static_cast<uint8_t*>(PerAllocate(reader, count));
  if (octets == nullptr) return nullptr;
  PerAlign(reader);
  TakeOctets(reader, octets, Minimum(count, PerOctetsLeft(reader)));
  return octets;
}

uint8_t* PerReadOctetString(PerReader& reader, uint32_t* length) {
  if (PerAtEnd(reader)) return nullptr;
  const uint32_t octets = PerReadLength(reader);
  if (length != nullptr) *length = octets;
  return PerReadOctets(reader, octets);
}

void PerReadClearedOctetString(OctetStringValue& value, PerReader& reader) {
  value.length = PerReadLength(reader);
  if (value.length > PerOctetsLeft(reader)) {
    value.length = 0;
    PerMoveToEnd(reader, PerCause::kLengthPastEnd);
    return;
  }
  value.data = PerReadOctets(reader, value.length);
}

uint8_t* PerReadBitString(PerReader& reader, uint32_t count) {
  if (!HasString(reader, count, count / 8 <= PerOctetsLeft(reader) + 1)) return nullptr;
  auto* octets = static_cast<uint8_t*>(PerAllocate(reader, (uint64_t{count} + 7) / 8));
  if (octets == nullptr) return nullptr;
  if (count > 16) PerAlign(reader);
  uint32_t done = 0;
  if (reader.bitOffset == 0) {
    done = Minimum(count / 8, PerOctetsLeft(reader));
    TakeOctets(reader, octets, done);
  }
  for (; done < count / 8 && !IsMissing(reader); ++done) octets[done] = static_cast<uint8_t>(PerReadBits(reader, 8));
  if (const uint32_t rest = count % 8; rest != 0 && !IsMissing(reader)) {
    octets[count / 8] = static_cast<uint8_t>(PerReadBits(reader, rest) << (8 - rest));
  }
  return octets;
}

uint8_t* PerReadNibbles(PerReader& reader, uint32_t count) {
  return ReadNibbleString(reader, count, [](uint32_t code) { return code; });
}

uint8_t* PerReadNumericString(PerReader& reader, uint32_t count) {
  return ReadNibbleString(reader, count, [](uint32_t code) { return code == 0 ? uint32_t{' '} : code + 47; });
}

uint8_t* PerReadTBCDString(PerReader& reader, uint32_t count) {
  return ReadNibbleString(reader, count, [](uint32_t code) { return "#*0123456789abc="[code & 15]; });
}

uint8_t* PerReadPrintableString(PerReader& reader, uint32_t count) {
  if (!HasString(reader, count, count <= PerOctetsLeft(reader))) return nullptr;
  return ReadCharacters<uint8_t, 8>(reader, count, PrintableCharacter);
}

uint16_t* PerReadBMPString(PerReader& reader, uint32_t count) {
  if (!HasString(reader, count, uint64_t{count} * 2 <= PerOctetsLeft(reader))) return nullptr;
  return ReadCharacters<uint16_t, 16>(reader, count, [](uint32_t unit) { return unit; });
}

uint32_t PerReadSubidentifier(PerReader& reader) {
  uint32_t value = 0;
  uint32_t octet = 0;
  do {
    octet = PerReadBits(reader, 8);  // 0 at the end, which ends the subidentifier
    value = value << 7 | (octet & 0x7F);
  } while ((octet & 0x80) != 0);
  return value;
}

void PerReadObjectIdentifier(ObjectIdentifierValue& value, PerReader& reader) {
  if (PerAtEnd(reader)) return;
  const uint32_t length = PerReadLength(reader);
  if (length == 0) {
    value.count = 0;
    return;
  }
  // The contents are counted, as far as the caller's buffer goes, before their length is checked. Octets before the end
  // but outside that buffer read as zero, so each ends a subidentifier.
  const uint32_t left = PerOctetsLeft(reader);
  const uint32_t readable = PerReadableOctets(reader);
  const uint32_t counted = Minimum(length, readable > left ? readable : left);
  const uint32_t inside = Minimum(length, readable);
  const uint32_t count = 1 + CountSubidentifiers(reader.position, inside, readable) + (counted - inside);
  value.count = count;
  if (length > left) {
    PerMoveToEnd(reader, PerCause::kLengthPastEnd);
    PerCountRereading(reader, counted);
    return;
  }
  auto* arcs = static_cast<uint32_t*>(PerAllocate(reader, uint64_t{count} * sizeof(uint32_t)));
  if (arcs == nullptr) {
    PerCountRereading(reader, length);
    return;
  }
  value.arcs = arcs;
  const uint8_t* after = PerAdvance(reader.position, length);
  if (count > 1 && inside == length) [[likely]] {
    reader.position = TakeArcs(arcs, count, reader.position);
  } else {
    ReadArcs(reader, arcs, count);
  }
  // Octets after the last complete subidentifier were only counted.
  if (reader.position < after) PerCountRereading(reader, static_cast<uint32_t>(after - reader.position));
}

}  // namespace kelvra
