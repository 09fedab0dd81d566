// Walking decoded records. Every record type has a static member template
//
//   template <class Record, class Visitor> static void Walk(Record& record, Visitor& visitor);
//
// that tells the visitor its members in declaration order, by their ASN.1 identifiers: present
// members only, and of a CHOICE the chosen alternative only. A visitor has these members:
//
//   void Number(const char* name, int64_t value);                        INTEGER
//   void Boolean(const char* name, uint32_t value);                      BOOLEAN
//   void EnumeratedValue(uint32_t value, const char* identifier);
//                                        the value of an ENUMERATED record; null: it has no identifier
//   void Null(const char* name);                                         NULL, or a value passed over
//   void UnknownExtension(uint32_t index);         a CHOICE's extension alternative that is not known
//   void UnknownRoot(uint32_t index);              an index beyond a CHOICE's root alternatives
//   void ObjectIdentifier(const char* name, ObjectIdentifierValue& value);
//   void Characters16(const char* name, BMPStringValue& value);          BMPString
//   void Octets(const char* name, Slot<uint8_t> slot, uint32_t count, OctetNotation notation);
//   void Embedded(const char* name, const uint8_t* octets, uint32_t count, OctetNotation notation);
//                                        octets that stand in the record itself
//   template <class R> void Record(const char* name, R& record);         SEQUENCE or CHOICE
//   template <class R> void Pointer(const char* name, Slot<R> slot);     a record in a block of its own
//   template <class L> void List(const char* name, L list);              SEQUENCE OF or SET OF records
//   template <class L> void Numbers(const char* name, L list);           of INTEGER
//   template <class L> void ObjectIdentifiers(const char* name, L list); of OBJECT IDENTIFIER
//   template <class L> void OctetStrings(const char* name, L list, OctetNotation notation);
//   template <class L> void FixedOctetStrings(const char* name, L list, uint32_t size);
//                                        strings of one fixed size whose length words are not kept
//
// A list is a ListIn<Element, Count>. Where its elements are lists themselves, each is a record that tells
// its own list as kUnnamed. Blocks belong to the record; a visitor that releases them does so
// through the slots.
#pragma once

#include <stdint.h>

#include "list.h"
#include "values.h"

namespace kelvra {

// The name of a value that is all there is of its record, as where each element of a list is a list.
inline constexpr const char* kUnnamed = "";

// How the octets of a string are to be read by a person.
enum class OctetNotation : uint8_t {
  kOctets,      // OCTET STRING, or an open type kept whole
  kCharacters,  // IA5String, GeneralString and the like
  kDigits,      // 4-bit codes: 0 '#', 1 '*', 2 ',', 3 to 12 the digits 0 to 9
  kBits,        // BIT STRING of variable size: the count is in bits
  kFixedBits,   // BIT STRING of fixed size: the count is in bits
};

// Passes an OctetStringValue to a visitor.
template <class Visitor>
void WalkOctets(Visitor& visitor, const char* name, const OctetStringValue& value,
                OctetNotation notation = OctetNotation::kOctets) {
  visitor.Octets(name, Slot<uint8_t>(&value.data), value.length, notation);
}

template <uint32_t kCount>
constexpr uint32_t CountOf(const char* const (&)[kCount]) {
  return kCount;
}

// How many extension alternatives a CHOICE of NULLs knows. `Names` lists its alternatives, roots first.
template <class Names>
constexpr uint32_t ExtensionsOf() {
  return CountOf(Names::kAlternatives) - Names::kRoots;
}

// Passes a CHOICE of NULLs to a visitor.
template <class Names, class Visitor>
void WalkNullChoice(Visitor& visitor, uint32_t isExtension, uint32_t tag) {
  if (isExtension == 0) {
    if (tag < Names::kRoots) return visitor.Null(Names::kAlternatives[tag]);
    return visitor.UnknownRoot(tag);
  }
  if (tag < ExtensionsOf<Names>()) return visitor.Null(Names::kAlternatives[Names::kRoots + tag]);
  visitor.UnknownExtension(tag);
}

}  // namespace kelvra
