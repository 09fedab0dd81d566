#include "per/primitives.h"

#include "codec/memory.h"
#include "codec/trace.h"

namespace kelvra {
namespace {

enum RefusalLine : int32_t { kBlockRefused = 192, kFragmented = 275 };

// Copies the next `count` octets of an aligned reader, those outside the caller's buffer as zero.
void TakeOctets(PerReader& reader, uint8_t* octets, uint32_t count) {
  const auto readable =
      reader.position >= reader.readable ? 0 : static_cast<uint32_t>(reader.readable - reader.position);
  CodecCopy(octets, reader.position, count < readable ? count : readable);
  PerSkipBits(reader, count * 8);
}

uint32_t Minimum(uint32_t a, uint32_t b) { return a < b ? a : b; }

// `count` characters of `width` bits, each mapped before it is stored. Characters that the input does
// not reach stay 0.
template <class Character, class Map>
Character* ReadCharacters(PerReader& reader, uint32_t count, uint32_t width, Map map) {
  auto* characters = static_cast<Character*>(PerAllocate(reader, uint64_t{count} * sizeof(Character)));
  if (characters == nullptr) return nullptr;
  PerAlign(reader);
  for (uint32_t i = 0; i < count && !PerAtEnd(reader); ++i) {
    characters[i] = static_cast<Character>(map(PerReadBits(reader, width)));
  }
  return characters;
}

template <class Map>
uint8_t* ReadNibbleString(PerReader& reader, uint32_t count, Map map) {
  if (PerAtEnd(reader) || count == 0) return nullptr;
  if (count / 2 > PerOctetsLeft(reader) + 1) {
    PerMoveToEnd(reader);
    return nullptr;
  }
  return ReadCharacters<uint8_t>(reader, count, 4, map);
}

uint32_t PrintableCharacter(uint32_t index) {
  if (index == 0 || index > 73 || (index >= 22 && index <= 40)) return ' ';
  if (index >= 48) return index + 49;  // a to z
  if (index >= 41) return index + 43;  // T to Z
  return static_cast<uint8_t>(" '()+,-./0123456789:=?"[index < 22 ? index : 0]);
}

}  // namespace

void* PerAllocate(PerReader& reader, uint64_t size) {
  void* block = nullptr;
  if (size <= kMaximumMessageMemory - reader.allocated) block = CodecAlloc(static_cast<size_t>(size));
  if (block == nullptr) {
    CodecTrace(kTraceDecoder, kTraceError, kReasonAllocation, kSourceStrings, kBlockRefused);
    PerMoveToEnd(reader);
    return nullptr;
  }
  reader.allocated += static_cast<uint32_t>(size);
  return block;
}

uint32_t PerReadConstrainedWholeNumber(PerReader& reader, uint32_t range) {
  if (PerAtEnd(reader) || range < 2) return 0;
  if (range < 256) return PerReadBits(reader, 32 - static_cast<uint32_t>(__builtin_clz(range - 1)));
  if (range <= 65536) {
    PerAlign(reader);
    return PerReadBits(reader, range == 256 ? 8 : 16);
  }
  const uint32_t octets = PerReadBits(reader, 2) + 1;
  PerAlign(reader);
  // A fourth octet cannot occur in a range of three; the number reads as 0 and no octet is consumed.
  if (range <= 1U << 24 && octets == 4) return 0;
  return PerReadBits(reader, octets * 8);
}

uint32_t PerReadLength(PerReader& reader) {
  if (PerAtEnd(reader)) return 0;
  PerAlign(reader);
  if (PerReadBit(reader) == 0) return PerReadBits(reader, 7);
  if (PerReadBit(reader) == 0) return PerReadBits(reader, 14);
  CodecTrace(kTraceDecoder, kTraceError, kReasonDecode, kSourceLength, kFragmented);
  PerMoveToEnd(reader);
  return 0;
}

uint32_t PerReadNormallySmall(PerReader& reader) {
  if (PerAtEnd(reader)) return 0;
  if (PerReadBit(reader) == 0) return PerReadBits(reader, 6);
  const uint32_t octets = PerReadLength(reader);
  if (octets > 4) {
    PerMoveToEnd(reader);
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
    PerMoveToEnd(reader);
    return 0;
  }
  if (octets == 0) return 0;
  const uint32_t unused = 32 - octets * 8;
  return static_cast<int32_t>(PerReadBits(reader, octets * 8) << unused) >> unused;
}

uint8_t* PerReadOctets(PerReader& reader, uint32_t count) {
  if (PerAtEnd(reader) || count == 0) return nullptr;
  if (count > PerOctetsLeft(reader)) {
    PerMoveToEnd(reader);
    return nullptr;
  }
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

uint8_t* PerReadSizedOctets(PerReader& reader, uint32_t* length, uint32_t range, uint32_t lowerBound) {
  if (PerAtEnd(reader)) return nullptr;
  const uint32_t octets = PerReadConstrainedWholeNumber(reader, range) + lowerBound;
  if (length != nullptr) *length = octets;
  return PerReadOctets(reader, octets);
}

void PerReadOctetStringRecord(OctetStringValue& value, PerReader& reader) {
  value.length = PerReadLength(reader);
  if (value.length > PerOctetsLeft(reader)) {
    value.length = 0;
    PerMoveToEnd(reader);
    return;
  }
  value.data = PerReadOctets(reader, value.length);
}

uint8_t* PerReadBitString(PerReader& reader, uint32_t count) {
  if (PerAtEnd(reader) || count == 0) return nullptr;
  if (count / 8 > PerOctetsLeft(reader) + 1) {
    PerMoveToEnd(reader);
    return nullptr;
  }
  auto* octets = static_cast<uint8_t*>(PerAllocate(reader, (uint64_t{count} + 7) / 8));
  if (octets == nullptr) return nullptr;
  if (count > 16) PerAlign(reader);
  uint32_t done = 0;
  if (reader.bitOffset == 0) {
    done = Minimum(count / 8, PerOctetsLeft(reader));
    if (done != 0) TakeOctets(reader, octets, done);
  }
  for (; done < count / 8 && !PerAtEnd(reader); ++done) octets[done] = static_cast<uint8_t>(PerReadBits(reader, 8));
  if (const uint32_t rest = count % 8; rest != 0 && !PerAtEnd(reader)) {
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
  if (PerAtEnd(reader) || count == 0) return nullptr;
  if (count > PerOctetsLeft(reader)) {
    PerMoveToEnd(reader);
    return nullptr;
  }
  return ReadCharacters<uint8_t>(reader, count, 8, PrintableCharacter);
}

uint16_t* PerReadBMPString(PerReader& reader, uint32_t count) {
  if (PerAtEnd(reader) || count == 0) return nullptr;
  if (uint64_t{count} * 2 > PerOctetsLeft(reader)) {
    PerMoveToEnd(reader);
    return nullptr;
  }
  return ReadCharacters<uint16_t>(reader, count, 16, [](uint32_t unit) { return unit; });
}

uint32_t PerReadSubidentifier(PerReader& reader) {
  if (PerAtEnd(reader)) return 0;
  uint32_t value = 0;
  uint32_t octet = 0;
  do {
    octet = PerReadBits(reader, 8);  // 0 at the end, which ends the subidentifier as a last octet does
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
  const uint32_t left = PerOctetsLeft(reader);
  uint32_t count = 1;
  for (uint32_t i = 0; i < Minimum(length, left); ++i) count += PerPeekOctet(reader, i) < 0x80;
  value.count = count;
  if (length > left) {
    PerMoveToEnd(reader);
    return;
  }
  auto* arcs = static_cast<uint32_t*>(PerAllocate(reader, uint64_t{count} * sizeof(uint32_t)));
  if (arcs == nullptr) return;
  value.arcs = arcs;
  const uint32_t first = PerReadSubidentifier(reader);
  arcs[0] = first / 40;
  // Contents without a final octet count a single arc, so there is no room for the second.
  if (count > 1) arcs[1] = first % 40;
  for (uint32_t i = 2; i < count && !PerAtEnd(reader); ++i) arcs[i] = PerReadSubidentifier(reader);
}

}  // namespace kelvra
