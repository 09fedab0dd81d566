// One primitive for each PER construct (X.691, aligned variant).
//
// At the reader's end a primitive reads nothing and yields 0 or null. No primitive reports an error: what it cannot
// decode (a fragmented length, a length past the end, a refused block) moves the reader to its end. A returned pointer
// is a block that the caller owns and keeps in its record; octets that were not read are zero.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "codec/memory.h"
#include "kelvra/values.h"
#include "per/reader.h"

namespace kelvra {

// The range that represents 2^32 values.
inline constexpr uint32_t kFullRange = 0xFFFFFFFF;

// Traces the refusal of a block of `size` octets and moves the reader to its end.
[[gnu::cold]] void PerRefuseBlock(PerReader& reader, uint64_t size);

// A zeroed block of `size` octets, charged to the message's allowance. If refused: null, and the reader at its end.
inline void* PerAllocate(PerReader& reader, uint64_t size) {
  void* block = nullptr;
  if (size <= reader.allowance) [[likely]]
    block = CodecAlloc(static_cast<size_t>(size));
  if (block == nullptr) [[unlikely]] {
    PerRefuseBlock(reader, size);
    return nullptr;
  }
  reader.allowance -= static_cast<uint32_t>(size);
  return block;
}

// --- Numbers. ...AtEdge reads the same at any position. ---

uint32_t PerReadConstrainedWholeNumberAtEdge(PerReader& reader, uint32_t range);  // of 256 values or more
uint32_t PerReadLengthAtEdge(PerReader& reader);
uint32_t PerReadNormallySmallAtEdge(PerReader& reader);

// The bits of a constrained whole number with a range below 256.
constexpr uint32_t PerBitsOfRange(uint32_t range) {
  return range < 2 ? 0 : 32 - static_cast<uint32_t>(__builtin_clz(range - 1));
}

// Constrained whole number of `range` values (10.5), minus its lower bound.
[[gnu::always_inline]] inline uint32_t PerReadConstrainedWholeNumber(PerReader& reader, uint32_t range) {
  if (range < 2) return 0;
  if (range < 256) return PerReadBits(reader, PerBitsOfRange(range));
  const BitOffset offset = reader.bitOffset;
  if (range <= 65536 && PerHasOctets(reader, 3)) [[likely]] {
    const uint8_t* octets = PerBoundary(reader, offset);
    PerMoveTo(reader, octets + (range == 256 ? 1 : 2));
    return range == 256 ? octets[0] : PerLoad16(octets);
  }
  return PerReadConstrainedWholeNumberAtEdge(reader, range);
}

// Unconstrained length determinant (10.9), 0 to 16383. Fragments (10.9.3.8) are refused.
[[gnu::always_inline]] inline uint32_t PerReadLength(PerReader& reader) {
  const BitOffset offset = reader.bitOffset;
  if (PerHasOctets(reader, 3)) [[likely]] {
    const uint8_t* octets = PerBoundary(reader, offset);
    if (octets[0] < 0x80) [[likely]] {
      PerMoveTo(reader, octets + 1);
      return octets[0];
    }
    if (octets[0] < 0xC0) {
      PerMoveTo(reader, octets + 2);
      return PerLoad16(octets) & 0x3FFF;
    }
  }
  return PerReadLengthAtEdge(reader);
}

// Normally small non-negative whole number (10.6).
inline uint32_t PerReadNormallySmall(PerReader& reader) {
  const BitOffset offset = reader.bitOffset;
  if (PerHasOctets(reader, 2) && !PerPeekBit(reader, offset)) [[likely]]
    return PerTakeBits(reader, offset, 7, 2);
  return PerReadNormallySmallAtEdge(reader);
}

// Semi-constrained whole number (10.7) with lower bound 0, up to 32 bits. No decoder uses it, not even for the long
// form of a normally small number, because it does not report a number that is too wide.
uint32_t PerReadUnsignedWithLength(PerReader& reader);
// Unconstrained whole number (10.8), up to 32 bits.
int32_t PerReadInteger(PerReader& reader);

// OCTET STRING (16) of `count` octets, always aligned.
uint8_t* PerReadOctets(PerReader& reader, uint32_t count);
// OCTET STRING with a length determinant. `length` may be null; it is stored even if the octets are missing.
uint8_t* PerReadOctetString(PerReader& reader, uint32_t* length);
// OCTET STRING whose length is constrained to `range` values from `lowerBound`.
inline uint8_t* PerReadSizedOctets(PerReader& reader, uint32_t* length, uint32_t range, uint32_t lowerBound) {
  if (PerAtEnd(reader)) return nullptr;
  const uint32_t octets = PerReadConstrainedWholeNumber(reader, range) + lowerBound;
  if (length != nullptr) *length = octets;
  return PerReadOctets(reader, octets);
}
// OCTET STRING with a length determinant; a length past the end leaves an empty value.
void PerReadClearedOctetString(OctetStringValue& value, PerReader& reader);
// BIT STRING (15) of `count` bits, aligned if longer than 16.
uint8_t* PerReadBitString(PerReader& reader, uint32_t count);

// Strings of 4-bit characters, `count` of them: the codes as sent; NumericString; TBCD-STRING.
uint8_t* PerReadNibbles(PerReader& reader, uint32_t count);
uint8_t* PerReadNumericString(PerReader& reader, uint32_t count);
uint8_t* PerReadTBCDString(PerReader& reader, uint32_t count);
// PrintableString by canonical index, 8 bits per character. The capitals A to S become spaces.
uint8_t* PerReadPrintableString(PerReader& reader, uint32_t count);
// BMPString of `count` 16-bit characters.
uint16_t* PerReadBMPString(PerReader& reader, uint32_t count);

// One subidentifier, base 128 (X.690 8.19); keeps the low 32 bits.
uint32_t PerReadSubidentifier(PerReader& reader);
// OBJECT IDENTIFIER (23).
void PerReadObjectIdentifier(ObjectIdentifierValue& value, PerReader& reader);

}  // namespace kelvra
