// Numbers and strings as records keep them. Bounds are those of the ASN.1, inclusive.
#pragma once

#include "kelvra/description.h"
#include "per/primitives.h"

namespace kelvra {

// --- Numbers ---

// Functions with bounds are always inline: constant bounds reduce them to the one form of the number.

// INTEGER (low..high). The number is not checked against its range.
template <class Number>
[[gnu::always_inline]] inline Number PerReadNumber(PerReader& r, int64_t low, int64_t high) {
  const int64_t values = high - low + 1;
  const uint32_t range = values > asn1::kUnsigned32Maximum ? kFullRange : static_cast<uint32_t>(values);
  return static_cast<Number>(PerReadConstrainedWholeNumber(r, range) + low);
}

// INTEGER (low..high, ...): an extension bit decides between the constrained and the unbounded form.
[[gnu::always_inline]] inline uint32_t PerReadExtensibleNumber(PerReader& r, int64_t low, int64_t high) {
  if (PerReadBit(r) != 0) return static_cast<uint32_t>(PerReadInteger(r));
  return PerReadNumber<uint32_t>(r, low, high);
}

// --- Strings: the length is stored before the units are read ---

// `count` units of a string.
template <asn1::StringUnits kUnits>
[[gnu::always_inline]] inline auto PerReadUnits(PerReader& r, uint32_t count) {
  if constexpr (kUnits == asn1::StringUnits::kOctets) return PerReadOctets(r, count);
  if constexpr (kUnits == asn1::StringUnits::kBits) return PerReadBitString(r, count);
  if constexpr (kUnits == asn1::StringUnits::kNumberDigits) return PerReadNibbles(r, count);
  if constexpr (kUnits == asn1::StringUnits::kNumericCharacters) return PerReadNumericString(r, count);
  if constexpr (kUnits == asn1::StringUnits::kTBCDDigits) return PerReadTBCDString(r, count);
  if constexpr (kUnits == asn1::StringUnits::kPrintableCharacters) return PerReadPrintableString(r, count);
  if constexpr (kUnits == asn1::StringUnits::kWideCharacters) return PerReadBMPString(r, count);
}

template <class String, asn1::StringUnits kUnits, OctetNotation kNotation>
[[gnu::always_inline]] inline void PerReadString(String& value, PerReader& r,
                                                 asn1::FixedStringKind<kUnits, kNotation> kind) {
  value.length = kind.size;
  value.data = PerReadUnits<kUnits>(r, kind.size);
}

template <class String, asn1::StringUnits kUnits, OctetNotation kNotation>
[[gnu::always_inline]] inline void PerReadString(String& value, PerReader& r,
                                                 asn1::SizedStringKind<kUnits, kNotation> kind) {
  if constexpr (kUnits == asn1::StringUnits::kOctets) {
    uint32_t length = 0;
    value.data = PerReadSizedOctets(r, &length, kind.high - kind.low + 1, kind.low);
    value.length = length;
  } else {
    const auto length = PerReadNumber<uint32_t>(r, kind.low, kind.high);
    value.length = length;
    value.data = PerReadUnits<kUnits>(r, length);
  }
}

template <class String, asn1::StringUnits kUnits, OctetNotation kNotation>
[[gnu::always_inline]] inline void PerReadString(String& value, PerReader& r,
                                                 asn1::UnsizedStringKind<kUnits, kNotation>) {
  if constexpr (kUnits == asn1::StringUnits::kOctets) {
    uint32_t length = 0;
    value.data = PerReadOctetString(r, &length);
    value.length = length;
  } else {
    const uint32_t length = PerReadLength(r);
    value.length = length;
    value.data = PerReadUnits<kUnits>(r, length);
  }
}

inline void PerReadString(OctetStringValue& value, PerReader& r, asn1::ClearedOctetStringKind) {
  PerReadClearedOctetString(value, r);
}

inline void PerReadString(OctetStringValue& value, PerReader& r, asn1::UncountedOctetStringKind kind) {
  value.data = PerReadOctets(r, kind.size);
}

inline void PerReadString(Slot<uint8_t> slot, PerReader& r, asn1::SplitOctetStringKind kind) {
  uint32_t length = 0;
  slot.Set(PerReadOctetString(r, &length));
  kind.length.Set(length);
}

inline void PerReadString(Slot<uint8_t> slot, PerReader& r, asn1::FixedSplitOctetStringKind kind) {
  kind.length.Set(kind.size);
  slot.Set(PerReadOctets(r, kind.size));
}

inline void PerReadString(OctetStringValue& value, PerReader& r, asn1::SignalTypeKind) {
  value.length = 1;
  value.data = PerReadBitString(r, 8);
}

}  // namespace kelvra
