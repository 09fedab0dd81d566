// The few words in which the decoders of all families are written.
#pragma once

#include "codec/status.h"
#include "per/open_type.h"
#include "per/primitives.h"
#include "per/walk.h"

namespace kelvra {

// A block for `count` elements, its address in `slot`; null (and the reader at its end) when refused.
template <class Element>
Element* AllocateList(PerReader& reader, Slot<Element> slot, uint32_t count) {
  auto* elements = static_cast<Element*>(PerAllocate(reader, uint64_t{count} * sizeof(Element)));
  slot.Set(elements);
  return elements;
}

// The count of a SEQUENCE OF without bounds, of which a record keeps the low 8 bits.
inline uint8_t PerReadCount8(PerReader& reader) { return static_cast<uint8_t>(PerReadLength(reader)); }

inline void PerReadSizedOctets(OctetStringValue& value, PerReader& reader, uint32_t range, uint32_t lowerBound) {
  uint32_t length = 0;
  value.data = PerReadSizedOctets(reader, &length, range, lowerBound);
  value.length = length;
}

inline void PerReadFixedOctets(OctetStringValue& value, PerReader& reader, uint32_t count) {
  value.length = count;
  value.data = PerReadOctets(reader, count);
}

inline void PerReadOctetString(OctetStringValue& value, PerReader& reader) {
  uint32_t length = 0;
  value.data = PerReadOctetString(reader, &length);
  value.length = length;
}

// Strings of `count` 4-bit codes or 16-bit characters, whose count is kept before they are read.
inline void PerReadDigits(OctetStringValue& value, PerReader& reader, uint32_t count) {
  value.length = count;
  value.data = PerReadNibbles(reader, count);
}

inline void PerReadTBCD(OctetStringValue& value, PerReader& reader, uint32_t count) {
  value.length = count;
  value.data = PerReadTBCDString(reader, count);
}

inline void PerReadBits(OctetStringValue& value, PerReader& reader, uint32_t count) {
  value.length = count;
  value.data = PerReadBitString(reader, count);
}

inline void PerReadCharacters16(BMPStringValue& value, PerReader& reader, uint32_t count) {
  value.length = count;
  value.data = PerReadBMPString(reader, count);
}

inline void PerReadNumeric(OctetStringValue& value, PerReader& reader, uint32_t count) {
  value.length = count;
  value.data = PerReadNumericString(reader, count);
}

inline constexpr int64_t kUnsigned32Maximum = 0xFFFFFFFF;

// INTEGER (low..high). No check is made that the number stays within a field wider than its range.
template <class Number>
Number PerReadNumber(PerReader& reader, int64_t low, int64_t high) {
  const int64_t values = high - low + 1;
  const uint32_t range = values > kUnsigned32Maximum ? kFullRange : static_cast<uint32_t>(values);
  return static_cast<Number>(PerReadConstrainedWholeNumber(reader, range) + low);
}

// INTEGER (low..high, ...): an extension bit decides between the constrained and the unbounded form.
inline uint32_t PerReadExtensibleNumber(PerReader& reader, int64_t low, int64_t high) {
  if (PerReadBit(reader) != 0) return static_cast<uint32_t>(PerReadInteger(reader));
  return PerReadNumber<uint32_t>(reader, low, high);
}

}  // namespace kelvra
