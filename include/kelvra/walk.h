// Walking decoded records. Every record type has a static member template
//
//   template <class Record, class Visitor> static void Walk(Record& record, Visitor& visitor);
//
// that reports the record's members to a visitor in ASN.1 order, under their ASN.1 identifiers: only present members,
// and only the chosen alternative of a CHOICE. A visitor has these members and can inherit those it does not need from
// EmptyVisitor:
//
//   void Number(const char* name, int64_t value);                        INTEGER
//   void Boolean(const char* name, uint32_t value);                      BOOLEAN
//   void EnumeratedValue(uint32_t value, const char* identifier);
//                                        the value of an ENUMERATED record; null: it has no identifier
//   void Null(const char* name);                                         NULL, or a value that is skipped
//   void UnknownExtension(uint32_t index);         an unknown extension alternative of a CHOICE
//   void UnknownRoot(uint32_t index);              an index past a CHOICE's root alternatives
//   void ObjectIdentifier(const char* name, ObjectIdentifierValue& value);
//   void WideCharacters(const char* name, BMPStringValue& value);        BMPString
//   void Octets(const char* name, Slot<uint8_t> slot, uint32_t count, OctetNotation notation);
//                                        any other string, in its own block
//   void EmbeddedOctets(const char* name, const uint8_t* octets, uint32_t count, OctetNotation notation);
//                                        octets in the record itself
//   template <class R> void Record(const char* name, R& record);         SEQUENCE or CHOICE
//   template <class R> void Pointer(const char* name, Slot<R> slot);     one in its own block
//   template <class L, class Show> void List(const char* name, L list, Show show);   SEQUENCE OF or SET OF:
//                                        show(element) reports one element, under a null name
//
// If the elements of a list are lists, each is a record whose only member has the name "". The record owns its
// blocks; a visitor that releases them does so through the slots.
#pragma once

#include <stdint.h>

#include "description.h"
#include "list.h"
#include "values.h"

namespace kelvra {

// Does nothing, and does not descend.
struct EmptyVisitor {
  void Number(const char*, int64_t) {}
  void Boolean(const char*, uint32_t) {}
  void EnumeratedValue(uint32_t, const char*) {}
  void Null(const char*) {}
  void UnknownExtension(uint32_t) {}
  void UnknownRoot(uint32_t) {}
  void ObjectIdentifier(const char*, const ObjectIdentifierValue&) {}
  void WideCharacters(const char*, const BMPStringValue&) {}
  void Octets(const char*, Slot<uint8_t>, uint32_t, OctetNotation) {}
  void EmbeddedOctets(const char*, const uint8_t*, uint32_t, OctetNotation) {}
  template <class R>
  void Record(const char*, R&) {}
  template <class R>
  void Pointer(const char*, Slot<R>) {}
  template <class L, class Show>
  void List(const char*, L, Show) {}
};

// The octets in a string's block. `count` is in bits for a BIT STRING.
constexpr uint32_t StringOctets(uint32_t count, OctetNotation notation) {
  const bool bits = notation == OctetNotation::kBits || notation == OctetNotation::kFixedBits;
  return bits ? count / 8 + (count % 8 != 0 ? 1U : 0U) : count;
}

namespace asn1 {

// Reports one value to a visitor, by its kind.
template <class Visitor>
class ValueWalk {
 public:
  explicit ValueWalk(Visitor& visitor) : visitor_(visitor) {}

  template <class Place, class Kind>
  void Show(const char*, Place&& place, NamedKind<Kind> named) {
    Show(named.name, place, named.kind);
  }
  template <class Place, template <class> class Wrapper, class Kind>
  void Show(const char* name, Place&& place, Wrapper<Kind> wrapper) {
    Show(name, place, wrapper.kind);
  }

  void Show(const char* name, Flag place, BooleanKind) { visitor_.Boolean(name, place.Get()); }
  template <class Place>
  void Show(const char* name, Place&&, NullKind) {
    visitor_.Null(name);
  }
  template <class T>
  void Show(const char* name, Scalar<T> place, NumberKind) {
    visitor_.Number(name, place.Get());
  }
  void Show(const char* name, ObjectIdentifierValue& value, ObjectIdentifierKind) {
    visitor_.ObjectIdentifier(name, value);
  }

  template <OctetNotation kNotation>
  void Show(const char* name, OctetStringValue& value, StringKind<kNotation>) {
    visitor_.Octets(name, Slot<uint8_t>(&value.data), value.length, kNotation);
  }
  template <OctetNotation kNotation>
  void Show(const char* name, BMPStringValue& value, StringKind<kNotation>) {
    visitor_.WideCharacters(name, value);
  }
  void Show(const char* name, OctetStringValue& value, UncountedOctetStringKind kind) {
    visitor_.Octets(name, Slot<uint8_t>(&value.data), kind.size, OctetNotation::kOctets);
  }
  void Show(const char* name, Slot<uint8_t> slot, SplitOctetStringKind kind) {
    visitor_.Octets(name, slot, kind.length.Get(), OctetNotation::kOctets);
  }
  void Show(const char* name, Slot<uint8_t> slot, FixedSplitOctetStringKind kind) {
    visitor_.Octets(name, slot, kind.size, OctetNotation::kOctets);
  }

  template <class R>
  void Show(const char* name, R& record, RecordKind) {
    visitor_.Record(name, record);
  }
  template <class R>
  void Show(const char* name, Slot<R> slot, IndirectKind) {
    visitor_.Pointer(name, slot);
  }

  template <class Place, class Kind>
  void Show(const char* name, Place&& place, SequenceOfKind<Kind> kind) {
    ShowList(name, ListOf(place), kind.element);
  }
  template <class Place, class Kind>
  void Show(const char* name, Place&& place, SizedSequenceOfKind<Kind> kind) {
    ShowList(name, ListOf(place), kind.element);
  }

 private:
  template <class List, class Kind>
  void ShowList(const char* name, List list, Kind kind) {
    visitor_.List(name, list, [this, kind](auto& element) {
      this->Show(nullptr, PlaceOf<typename List::Element>(&element), kind);
    });
  }

  Visitor& visitor_;
};

// Follows the description of a SEQUENCE.
template <class Visitor>
class SequenceWalk {
 public:
  explicit SequenceWalk(Visitor& visitor) : value_(visitor) {}

  template <class Place, class Kind>
  bool Member(const char* name, Place&& place, Kind kind) {
    value_.Show(name, place, kind);
    return true;
  }
  template <class Place, class Kind>
  bool Optional(Flag flag, const char* name, Place&& place, Kind kind) {
    if (flag.Get() != 0) value_.Show(name, place, kind);
    return true;
  }
  template <class Place, class Kind>
  bool Addition(Flag flag, const char* name, Place&& place, Kind kind) {
    return Optional(flag, name, place, kind);
  }
  void Extension(Flag) {}
  bool Versions(int32_t, int32_t) const { return true; }

 private:
  ValueWalk<Visitor> value_;
};

// Where the index of a CHOICE is kept.
struct ChoiceIndex {
  Scalar<uint8_t> tag{nullptr};
  Flag extension{nullptr};
  bool isExtensible = false;
  uint32_t roots = 0;

  // Follows a description.
  void Tag(Scalar<uint8_t> place) { tag = place; }
  template <class Place, class Kind>
  bool Alternative(const char*, Place&&, Kind) {
    return NullAlternative(nullptr);
  }
  bool NullAlternative(const char*) {
    roots += isExtensible ? 0U : 1U;
    return true;
  }
  bool PassedOver(const char*) { return NullAlternative(nullptr); }
  void Extension(Flag place) {
    extension = place;
    isExtensible = true;
  }
};

// Numbers the alternatives of a CHOICE: root alternatives from 0, extension alternatives from kFirstExtension.
inline constexpr uint32_t kFirstExtension = 0x10000;
inline uint32_t AlternativeNumber(bool isExtension, uint32_t index) {
  if (!isExtension) return index;
  return kFirstExtension + (index < kFirstExtension ? index : kFirstExtension);
}

// Follows the description of a CHOICE up to the chosen alternative.
template <class Visitor>
class ChoiceWalk {
 public:
  ChoiceWalk(Visitor& visitor, uint32_t number) : value_(visitor), visitor_(visitor), chosen_(number) {}

  void Tag(Scalar<uint8_t>) {}
  template <class Place, class Kind>
  bool Alternative(const char* name, Place&& place, Kind kind) {
    if (chosen_ != next_++) return true;
    value_.Show(name, place, kind);
    return false;
  }
  bool NullAlternative(const char* name) {
    if (chosen_ != next_++) return true;
    visitor_.Null(name);
    return false;
  }
  bool PassedOver(const char* name) { return NullAlternative(name); }
  void Extension(Flag) { next_ = kFirstExtension; }

 private:
  ValueWalk<Visitor> value_;
  Visitor& visitor_;
  uint32_t chosen_;
  uint32_t next_ = 0;
};

}  // namespace asn1

// Implements Walk for described types.
template <class Record, class Visitor>
void WalkRecord(Record& m, Visitor& visitor) {
  if constexpr (Record::kForm == asn1::TypeForm::kSequence) {
    asn1::SequenceWalk<Visitor> walk(visitor);
    static_cast<void>(Record::Describe(m, walk));
  } else {
    asn1::ChoiceIndex choice;
    static_cast<void>(Record::Describe(m, choice));
    const bool isExtension = choice.isExtensible && choice.extension.Get() != 0;
    const uint32_t index = choice.tag.Get();
    asn1::ChoiceWalk<Visitor> walk(visitor, asn1::AlternativeNumber(isExtension, index));
    if (!Record::Describe(m, walk)) return;
    if (isExtension) return visitor.UnknownExtension(index);
    visitor.UnknownRoot(index);
  }
}

}  // namespace kelvra
