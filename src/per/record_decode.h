// The few words in which the decoders of all families are written.
//
// A decoder is a function of one record and the reader. Those of H.225.0 and H.235 types return a
// Status, those of H.245 types nothing: one that gives up moves the reader to its end. A word that
// decodes by way of another decoder takes either kind. The bounds that words take are those of the
// ASN.1, both inclusive.
#pragma once

#include <type_traits>

#include "codec/status.h"
#include "per/open_type.h"
#include "per/primitives.h"
#include "record/list.h"
#include "record/null_choice.h"

namespace kelvra {

// --- Numbers ---

inline constexpr int64_t kUnsigned32Maximum = 0xFFFFFFFF;

// The words whose bounds decide how a number is read are always inline: with the bounds they fold to the
// one form that the number has.

// INTEGER (low..high). No check is made that the number stays within a field wider than its range.
template <class Number>
[[gnu::always_inline]] inline Number PerReadNumber(PerReader& r, int64_t low, int64_t high) {
  const int64_t values = high - low + 1;
  const uint32_t range = values > kUnsigned32Maximum ? kFullRange : static_cast<uint32_t>(values);
  return static_cast<Number>(PerReadConstrainedWholeNumber(r, range) + low);
}

// INTEGER (low..high, ...): an extension bit decides between the constrained and the unbounded form.
[[gnu::always_inline]] inline uint32_t PerReadExtensibleNumber(PerReader& r, int64_t low, int64_t high) {
  if (PerReadBit(r) != 0) return static_cast<uint32_t>(PerReadInteger(r));
  return PerReadNumber<uint32_t>(r, low, high);
}

// INTEGER (low..high) in an open type.
template <class Number>
[[gnu::always_inline]] inline Number PerReadOpenNumber(PerReader& r, int64_t low, int64_t high) {
  OpenTypeBegin(r);
  const Number value = PerReadNumber<Number>(r, low, high);
  OpenTypeEnd(r);
  return value;
}

// INTEGER (kLow..kHigh) as the element of a list.
template <class Number, int64_t kLow, int64_t kHigh>
void PerReadElement(Number& value, PerReader& r) {
  value = PerReadNumber<Number>(r, kLow, kHigh);
}

// --- Strings, of the record form: the length is kept before the units are read ---

inline void PerReadOctets(OctetStringValue& value, PerReader& r, uint32_t count) {
  value.length = count;
  value.data = PerReadOctets(r, count);
}

// The same as a value in an open type.
template <uint32_t kCount>
void PerReadOctetsElement(OctetStringValue& value, PerReader& r) {
  PerReadOctets(value, r, kCount);
}

// The length is kept as announced, also where the octets are missing; PerReadOctetStringRecord clears it.
inline void PerReadAnnouncedOctetString(OctetStringValue& value, PerReader& r) {
  uint32_t length = 0;
  value.data = PerReadOctetString(r, &length);
  value.length = length;
}

inline void PerReadNibbles(OctetStringValue& value, PerReader& r, uint32_t count) {
  value.length = count;
  value.data = PerReadNibbles(r, count);
}

inline void PerReadNumericString(OctetStringValue& value, PerReader& r, uint32_t count) {
  value.length = count;
  value.data = PerReadNumericString(r, count);
}

inline void PerReadTBCDString(OctetStringValue& value, PerReader& r, uint32_t count) {
  value.length = count;
  value.data = PerReadTBCDString(r, count);
}

inline void PerReadPrintableString(OctetStringValue& value, PerReader& r, uint32_t count) {
  value.length = count;
  value.data = PerReadPrintableString(r, count);
}

inline void PerReadBitString(OctetStringValue& value, PerReader& r, uint32_t count) {
  value.length = count;
  value.data = PerReadBitString(r, count);
}

inline void PerReadBMPString(BMPStringValue& value, PerReader& r, uint32_t count) {
  value.length = count;
  value.data = PerReadBMPString(r, count);
}

// SIZE (low..high): a constrained whole number, then the units.

[[gnu::always_inline]] inline void PerReadSizedOctets(OctetStringValue& value, PerReader& r, uint32_t low,
                                                      uint32_t high) {
  uint32_t length = 0;
  value.data = PerReadSizedOctets(r, &length, high - low + 1, low);
  value.length = length;
}

// The same as a value in an open type or an element of a list.
template <uint32_t kLow, uint32_t kHigh>
void PerReadSizedOctetsElement(OctetStringValue& value, PerReader& r) {
  PerReadSizedOctets(value, r, kLow, kHigh);
}

[[gnu::always_inline]] inline void PerReadSizedNibbles(OctetStringValue& value, PerReader& r, uint32_t low,
                                                       uint32_t high) {
  PerReadNibbles(value, r, PerReadNumber<uint32_t>(r, low, high));
}

[[gnu::always_inline]] inline void PerReadSizedNumericString(OctetStringValue& value, PerReader& r, uint32_t low,
                                                             uint32_t high) {
  PerReadNumericString(value, r, PerReadNumber<uint32_t>(r, low, high));
}

[[gnu::always_inline]] inline void PerReadSizedTBCDString(OctetStringValue& value, PerReader& r, uint32_t low,
                                                          uint32_t high) {
  PerReadTBCDString(value, r, PerReadNumber<uint32_t>(r, low, high));
}

[[gnu::always_inline]] inline void PerReadSizedBitString(OctetStringValue& value, PerReader& r, uint32_t low,
                                                         uint32_t high) {
  PerReadBitString(value, r, PerReadNumber<uint32_t>(r, low, high));
}

[[gnu::always_inline]] inline void PerReadSizedBMPString(BMPStringValue& value, PerReader& r, uint32_t low,
                                                         uint32_t high) {
  PerReadBMPString(value, r, PerReadNumber<uint32_t>(r, low, high));
}

template <uint32_t kLow, uint32_t kHigh>
void PerReadSizedBMPStringElement(BMPStringValue& value, PerReader& r) {
  PerReadSizedBMPString(value, r, kLow, kHigh);
}

// --- CHOICE ---

// The index of an extensible CHOICE whose extension bit is read, of `roots` root alternatives. Returns it
// in full; the record keeps its low 8 bits.
template <class Choice>
[[gnu::always_inline]] inline uint32_t ReadChoiceIndex(Choice& m, PerReader& r, uint32_t roots) {
  const uint32_t index = m.isExtension ? PerReadNormallySmall(r) : PerReadConstrainedWholeNumber(r, roots);
  m.choiceTag = static_cast<uint8_t>(index);
  return index;
}

// The header of an extensible CHOICE: extension bit and index, those of a root alternative at once.
template <class Choice>
[[gnu::always_inline]] inline uint32_t ReadChoice(Choice& m, PerReader& r, uint32_t roots) {
  const BitOffset offset = r.bitOffset;
  if (PerHasOctets(r, 2) && !PerPeekBit(r, offset)) [[likely]] {
    const uint32_t index = PerTakeBits(r, offset, 1 + PerBitsOfRange(roots), 2);
    m.isExtension = 0;
    m.choiceTag = static_cast<uint8_t>(index);
    return index;
  }
  m.isExtension = PerReadBit(r);
  return ReadChoiceIndex(m, r, roots);
}

// The same for a CHOICE without an extension marker.
template <class Choice>
[[gnu::always_inline]] inline uint32_t ReadRootChoice(Choice& m, PerReader& r, uint32_t roots) {
  const uint32_t index = PerReadConstrainedWholeNumber(r, roots);
  m.choiceTag = static_cast<uint8_t>(index);
  return index;
}

// Passes over an extension alternative that is not known.
inline Status SkipAlternative(PerReader& r) {
  PerSkipOpenTypes(r, 1);
  return kDecoded;
}

// Passes over an extension alternative of a CHOICE that knows the first `known`, some of which hold nothing.
inline Status PassOverAlternative(PerReader& r, uint32_t index, uint32_t known) {
  PerPassOverAlternative(r, index, known);
  return kDecoded;
}

// What a root alternative without contents reports, or an index beyond the `roots` alternatives.
inline Status NullAlternative(uint32_t index, uint32_t roots) { return index < roots ? kDecoded : kMalformed; }

// The alternative `index` of a CHOICE of NULLs.
template <class Names>
Status DecodeNull(const NullChoice<Names>& m, PerReader& r, uint32_t index) {
  if (m.isExtension) return PassOverAlternative(r, index, ExtensionsOf<Names>());
  return NullAlternative(index, Names::kRoots);
}

// A CHOICE of NULLs.
template <class Names>
Status DecodeNullChoice(NullChoice<Names>& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, Names::kRoots);
  return DecodeNull(m, r, index);
}

// The same for a CHOICE that does not keep the index of an extension alternative.
template <class Names>
Status DecodeUnindexedNullChoice(NullChoice<Names>& m, PerReader& r) {
  KELVRA_TRY(DecodeNullChoice(m, r));
  if (m.isExtension) m.choiceTag = 0;
  return kDecoded;
}

// --- Lists ---

// A block for the elements of a list, of which the record keeps the count; null (and the reader at its
// end) when it was refused.
template <class List>
typename List::Element* PerAllocateList(PerReader& r, List list) {
  using Element = typename List::Element;
  auto* elements = static_cast<Element*>(PerAllocate(r, uint64_t{list.Size()} * sizeof(Element)));
  list.Elements().Set(elements);
  return elements;
}

// `count` elements, as many as the record's count can hold of it. The first failure ends the list.
template <class List>
Status DecodeElements(List list, PerReader& r, uint32_t count,
                      Status (*decode)(std::type_identity_t<typename List::Element>&, PerReader&)) {
  list.SetSize(count);
  if (list.Size() == 0) return kDecoded;
  if (PerAllocateList(r, list) == nullptr) return kRefused;
  for (auto& element : list) KELVRA_TRY(decode(element, r));
  return kDecoded;
}

// The same by a decoder that returns nothing. Elements that the input does not reach stay zero.
template <class List>
Status DecodeElements(List list, PerReader& r, uint32_t count,
                      void (*decode)(std::type_identity_t<typename List::Element>&, PerReader&)) {
  list.SetSize(count);
  if (list.Size() == 0) return kDecoded;
  if (PerAllocateList(r, list) == nullptr) return kRefused;
  for (auto& element : list) {
    if (PerAtEnd(r)) break;
    decode(element, r);
  }
  return kDecoded;
}

// SEQUENCE OF, SET OF: the count is a length determinant.
template <class List, class Returned>
Status DecodeSequenceOf(List list, PerReader& r,
                        Returned (*decode)(std::type_identity_t<typename List::Element>&, PerReader&)) {
  return DecodeElements(list, r, PerReadLength(r), decode);
}

// SEQUENCE SIZE (low..high) OF: the count is a constrained whole number.
template <class List, class Returned>
Status DecodeSizedSequenceOf(List list, PerReader& r, uint32_t low, uint32_t high,
                             Returned (*decode)(std::type_identity_t<typename List::Element>&, PerReader&)) {
  return DecodeElements(list, r, PerReadNumber<uint32_t>(r, low, high), decode);
}

// --- Records behind pointers ---

// A record in a block of its own, as recursive types and rare large ones are held.
template <class T>
void DecodePointer(Slot<T> slot, PerReader& r, void (*decode)(std::type_identity_t<T>&, PerReader&)) {
  auto* record = static_cast<T*>(PerAllocate(r, sizeof(T)));
  slot.Set(record);
  if (record != nullptr) decode(*record, r);
}

// --- Values in open types ---

// Decodes the value of an open type. A failure leaves its slot in the ring taken.
template <class Value>
Status DecodeOpen(Value& m, PerReader& r, Status (*decode)(std::type_identity_t<Value>&, PerReader&)) {
  OpenTypeBegin(r);
  KELVRA_TRY(decode(m, r));
  OpenTypeEnd(r);
  return kDecoded;
}

template <class Value>
void DecodeOpen(Value& m, PerReader& r, void (*decode)(std::type_identity_t<Value>&, PerReader&)) {
  OpenTypeBegin(r);
  decode(m, r);
  OpenTypeEnd(r);
}

template <class T>
void DecodeOpenPointer(Slot<T> slot, PerReader& r, void (*decode)(std::type_identity_t<T>&, PerReader&)) {
  OpenTypeBegin(r);
  DecodePointer(slot, r, decode);
  OpenTypeEnd(r);
}

// SEQUENCE OF in an open type.
template <class List, class Returned>
Status DecodeOpenSequenceOf(List list, PerReader& r,
                            Returned (*decode)(std::type_identity_t<typename List::Element>&, PerReader&)) {
  OpenTypeBegin(r);
  KELVRA_TRY(DecodeSequenceOf(list, r, decode));
  OpenTypeEnd(r);
  return kDecoded;
}

// SEQUENCE SIZE (low..high) OF in an open type, which is left also where the list was refused: nothing unwinds
// where decoders return nothing, and those around this one go on behind it.
template <class List>
void DecodeOpenSizedSequenceOf(List list, PerReader& r, uint32_t low, uint32_t high,
                               void (*decode)(std::type_identity_t<typename List::Element>&, PerReader&)) {
  OpenTypeBegin(r);
  static_cast<void>(DecodeSizedSequenceOf(list, r, low, high, decode));
  OpenTypeEnd(r);
}

}  // namespace kelvra
