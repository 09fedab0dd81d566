// The words in which the decoders of H.225.0 and H.235 types are written: beside those of
// per/record_decode.h, whatever returns a status.
#pragma once

#include <type_traits>

#include "codec/status.h"
#include "h225/null_choice.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

// Reads the header of an extensible CHOICE into the record and returns the index in full.
template <class Choice>
uint32_t ReadChoice(Choice& m, PerReader& r, uint32_t roots) {
  m.isExtension = PerReadBit(r);
  const uint32_t index = m.isExtension ? PerReadNormallySmall(r) : PerReadConstrainedWholeNumber(r, roots);
  m.choiceTag = static_cast<uint8_t>(index);
  return index;
}

// Passes over an extension alternative.
inline Status SkipAlternative(PerReader& r) {
  PerSkipOpenTypes(r, 1);
  return kDecoded;
}

// Decodes the value of an open type. A failure leaves its slot in the ring taken.
template <class Decode>
Status InOpenType(PerReader& r, Decode decode) {
  OpenTypeBegin(r);
  KELVRA_TRY(decode());
  OpenTypeEnd(r);
  return kDecoded;
}

// The elements of a list whose count is already kept.
template <class Element>
Status DecodeList(PerReader& r, Slot<Element> slot, uint32_t count,
                  Status (*decode)(std::type_identity_t<Element>&, PerReader&)) {
  if (count == 0) return kDecoded;
  Element* elements = AllocateList(r, slot, count);
  if (elements == nullptr) return kRefused;
  for (uint32_t i = 0; i < count; ++i) KELVRA_TRY(decode(elements[i], r));
  return kDecoded;
}

// SEQUENCE OF without bounds, whose count keeps the low 8 bits.
template <class Element>
Status DecodeSequenceOf(PerReader& r, uint8_t* count, Slot<Element> slot,
                        Status (*decode)(std::type_identity_t<Element>&, PerReader&)) {
  *count = PerReadCount8(r);
  return DecodeList(r, slot, *count, decode);
}

inline Status DecodeOctetString(OctetStringValue& m, PerReader& r) {
  PerReadOctetStringRecord(m, r);
  return kDecoded;
}

inline Status DecodeObjectIdentifier(ObjectIdentifierValue& m, PerReader& r) {
  PerReadObjectIdentifier(m, r);
  return kDecoded;
}

// A CHOICE of NULLs: the known extension alternatives hold nothing, so all are passed over alike.
template <class Names>
Status DecodeNullChoice(NullChoice<Names>& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, Names::kRoots);
  if (m.isExtension) return SkipAlternative(r);
  return index < Names::kRoots ? kDecoded : kMalformed;
}

// The same for a CHOICE that does not keep the index of an extension alternative.
template <class Names>
Status DecodeUnindexedNullChoice(NullChoice<Names>& m, PerReader& r) {
  KELVRA_TRY(DecodeNullChoice(m, r));
  if (m.isExtension) m.choiceTag = 0;
  return kDecoded;
}

}  // namespace kelvra::h225

namespace kelvra::h235 {
using h225::DecodeList;
using h225::DecodeNullChoice;
using h225::DecodeObjectIdentifier;
using h225::DecodeOctetString;
using h225::DecodeSequenceOf;
using h225::InOpenType;
using h225::ReadChoice;
using h225::SkipAlternative;
}  // namespace kelvra::h235
