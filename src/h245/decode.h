// The words in which the decoders of H.245 types are written. These decoders return nothing: one that
// gives up moves the reader to its end, and those around it then read zeros.
#pragma once

#include <type_traits>

#include "h245/null_choice.h"
#include "per/record_decode.h"

namespace kelvra::h245 {

// Reads the header of an extensible CHOICE into the record and returns the index in full.
template <class Choice>
uint32_t ReadChoice(Choice& m, PerReader& r, uint32_t roots) {
  m.isExtension = PerReadBit(r);
  const uint32_t index = m.isExtension ? PerReadNormallySmall(r) : PerReadConstrainedWholeNumber(r, roots);
  m.choiceTag = static_cast<uint8_t>(index);
  return index;
}

// The same for a CHOICE without an extension marker.
template <class Choice>
uint32_t ReadRootChoice(Choice& m, PerReader& r, uint32_t roots) {
  m.choiceTag = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, roots));
  return m.choiceTag;
}

template <class Names>
void DecodeNullChoice(NullChoice<Names>& m, PerReader& r) {
  ReadChoice(m, r, Names::kRoots);
  if (m.isExtension) PerSkipOpenTypes(r, 1);
}

template <class Decode>
void InOpenType(PerReader& r, Decode decode) {
  OpenTypeBegin(r);
  decode();
  OpenTypeEnd(r);
}

// The elements of a list whose count is already kept; false when its block was refused. Elements that
// the input does not reach stay zero.
template <class Element>
bool DecodeList(PerReader& r, Slot<Element> slot, uint32_t count,
                void (*decode)(std::type_identity_t<Element>&, PerReader&)) {
  if (count == 0) return true;
  Element* elements = AllocateList(r, slot, count);
  if (elements == nullptr) return false;
  for (uint32_t i = 0; i < count && !PerAtEnd(r); ++i) decode(elements[i], r);
  return true;
}

// SEQUENCE OF without bounds, whose count keeps the low 8 bits.
template <class Element>
bool DecodeSequenceOf(PerReader& r, uint8_t* count, Slot<Element> slot,
                      void (*decode)(std::type_identity_t<Element>&, PerReader&)) {
  *count = PerReadCount8(r);
  return DecodeList(r, slot, *count, decode);
}

// A record in a block of its own, as recursive types and rare large ones are held.
template <class Pointee>
void DecodePointer(PerReader& r, Slot<Pointee> slot, void (*decode)(std::type_identity_t<Pointee>&, PerReader&)) {
  if (Pointee* pointee = AllocateList(r, slot, 1)) decode(*pointee, r);
}

inline void DecodeObjectIdentifier(ObjectIdentifierValue& m, PerReader& r) { PerReadObjectIdentifier(m, r); }

// How many additions a SEQUENCE's bitmap covers, kept in 8 bits: a coded 255 gives 0. The additions
// that are not known are counted for this SEQUENCE alone.
inline uint8_t PerReadBitmapLength8(PerReader& r) { return static_cast<uint8_t>(PerReadNormallySmall(r) + 1); }

}  // namespace kelvra::h245
