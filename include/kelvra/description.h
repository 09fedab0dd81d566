// The vocabulary of record descriptions: one function for each ASN.1 type and constraint that occurs.
//
// A record type describes its components in ASN.1 order, in a function that the macros of
// kelvra/begin_descriptions.h open and close:
//
//   struct AlternateGK {
//     TransportAddress rasAddress;
//     ...
//     KELVRA_SEQUENCE
//       KELVRA_MEMBER(rasAddress, DefinedType());
//       KELVRA_OPTIONAL(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
//       KELVRA_MEMBER(needToRegister, Boolean());
//       KELVRA_MEMBER(priority, Integer(0, 127));
//       KELVRA_EXTENSION(isExtended);
//     KELVRA_END
//   };
//
// A description does not say how to read or write. A follower (a decoder, a walk, a check) is an object that receives
// each component in turn: its name, its place in the record and its kind, one of the classes below.
#pragma once

#include <stdint.h>
#include <string.h>

#include "list.h"
#include "values.h"

namespace kelvra {

// How to present the octets of a string.
enum class OctetNotation : uint8_t {
  kOctets,      // OCTET STRING, or an open type kept whole
  kCharacters,  // IA5String, GeneralString and the like
  kDigits,      // 4-bit codes: 0 '#', 1 '*', 2 ',', 3 to 12 the digits 0 to 9
  kBits,        // BIT STRING of variable size: the count is in bits
  kFixedBits,   // BIT STRING of fixed size: the count is in bits
};

namespace asn1 {

inline constexpr int64_t kUnsigned32Maximum = 0xFFFFFFFF;

// --- Kinds: what the functions below return ---

struct BooleanKind {};
struct NullKind {};
struct NumberKind {};
struct IntegerKind : NumberKind {
  int64_t low, high;
};
struct ExtensibleIntegerKind : NumberKind {
  int64_t low, high;
};
struct UnconstrainedIntegerKind : NumberKind {};
struct ObjectIdentifierKind {};

// The units that a string is encoded in.
enum class StringUnits : uint8_t {
  kOctets,
  kBits,
  kNumberDigits,
  kNumericCharacters,
  kTBCDDigits,
  kPrintableCharacters,
  kWideCharacters,
};
template <OctetNotation kNotation>
struct StringKind {};
// SIZE (size), SIZE (low..high), and a length determinant.
template <StringUnits kUnits, OctetNotation kNotation>
struct FixedStringKind : StringKind<kNotation> {
  uint32_t size;
};
template <StringUnits kUnits, OctetNotation kNotation>
struct SizedStringKind : StringKind<kNotation> {
  uint32_t low, high;
};
template <StringUnits kUnits, OctetNotation kNotation>
struct UnsizedStringKind : StringKind<kNotation> {};
struct ClearedOctetStringKind : StringKind<OctetNotation::kOctets> {};
struct UncountedOctetStringKind {
  uint32_t size;
};
struct CheckedIA5StringKind : StringKind<OctetNotation::kCharacters> {
  uint32_t low, high;
};
struct SignalTypeKind : StringKind<OctetNotation::kCharacters> {};

struct RecordKind {};
struct DefinedTypeKind : RecordKind {};
struct InlineTypeKind : RecordKind {};
struct IndirectKind {};
template <class Kind>
struct AliasKind {
  Kind kind;
};
struct ContainingKind : RecordKind {};
template <class Kind>
struct EvenIfMissingKind {
  Kind kind;
};
template <class Kind>
struct SequenceOfKind {
  Kind element;
};
template <class Kind>
struct SizedSequenceOfKind {
  int64_t low, high;
  Kind element;
};
template <class Kind>
struct NamedKind {
  const char* name;
  Kind kind;
};

// --- Simple types ---

// BOOLEAN.
constexpr BooleanKind Boolean() { return {}; }
// NULL. A record's member for it, if any, stays zero.
constexpr NullKind Null() { return {}; }
// INTEGER (low..high). The number is not checked against its range if its field is wider.
constexpr IntegerKind Integer(int64_t low, int64_t high) { return {{}, low, high}; }
// INTEGER (low..high, ...).
constexpr ExtensibleIntegerKind ExtensibleInteger(int64_t low, int64_t high) { return {{}, low, high}; }
// INTEGER.
constexpr UnconstrainedIntegerKind Integer() { return {}; }
// OBJECT IDENTIFIER.
constexpr ObjectIdentifierKind ObjectIdentifier() { return {}; }

// --- Strings: SIZE (low..high), SIZE (size), and without a size constraint ---

template <StringUnits kUnits, OctetNotation kNotation>
struct StringWord {
  constexpr SizedStringKind<kUnits, kNotation> operator()(uint32_t low, uint32_t high) const { return {{}, low, high}; }
  constexpr FixedStringKind<kUnits, kNotation> operator()(uint32_t size) const { return {{}, size}; }
  constexpr UnsizedStringKind<kUnits, kNotation> operator()() const { return {}; }
};

// OCTET STRING. Without a size constraint its length is kept as sent, even if octets are missing.
inline constexpr StringWord<StringUnits::kOctets, OctetNotation::kOctets> OctetString{};
// OCTET STRING; a length past the end leaves an empty value.
constexpr ClearedOctetStringKind ClearedOctetString() { return {}; }
// OCTET STRING (SIZE (size)) whose length word stays zero.
constexpr UncountedOctetStringKind UncountedOctetString(uint32_t size) { return {size}; }
// IA5String and GeneralString, 8 bits per character.
inline constexpr StringWord<StringUnits::kOctets, OctetNotation::kCharacters> IA5String{};
inline constexpr StringWord<StringUnits::kOctets, OctetNotation::kCharacters> GeneralString{};
// IA5String (SIZE (low..high)) whose length is checked against `high`, which its 16 bits can exceed.
constexpr CheckedIA5StringKind CheckedIA5String(uint32_t low, uint32_t high) { return {{}, low, high}; }
// IA5String (SIZE (1)) of few characters, which is not aligned (X.691 27.5.6).
constexpr SignalTypeKind SignalType() { return {}; }
// IA5String (FROM ("0123456789#*,")), 4 bits per character, kept as codes.
inline constexpr StringWord<StringUnits::kNumberDigits, OctetNotation::kDigits> NumberDigits{};
// NumericString.
inline constexpr StringWord<StringUnits::kNumericCharacters, OctetNotation::kCharacters> NumericString{};
// TBCD-STRING, IA5String (FROM ("0123456789#*abc")), kept as characters.
inline constexpr StringWord<StringUnits::kTBCDDigits, OctetNotation::kCharacters> TBCDString{};
// PrintableString.
inline constexpr StringWord<StringUnits::kPrintableCharacters, OctetNotation::kCharacters> PrintableString{};
// BMPString.
inline constexpr StringWord<StringUnits::kWideCharacters, OctetNotation::kCharacters> BMPString{};

// BIT STRING.
constexpr SizedStringKind<StringUnits::kBits, OctetNotation::kBits> BitString(uint32_t low, uint32_t high) {
  return {{}, low, high};
}
constexpr FixedStringKind<StringUnits::kBits, OctetNotation::kFixedBits> BitString(uint32_t size) { return {{}, size}; }
constexpr UnsizedStringKind<StringUnits::kBits, OctetNotation::kBits> BitString() { return {}; }

// --- Records ---

// A named SEQUENCE or CHOICE. In H.225.0 and H.235 its decoder fails if nothing is left.
constexpr DefinedTypeKind DefinedType() { return {}; }
// Any other named type, an alias of `kind`.
template <class Kind>
constexpr AliasKind<Kind> DefinedType(Kind kind) {
  return {kind};
}
// A SEQUENCE or CHOICE that the ASN.1 defines inline.
constexpr InlineTypeKind InlineType() { return {}; }
// A defined type in its own block.
constexpr IndirectKind IndirectType() { return {}; }
// OCTET STRING (CONTAINING a defined type), decoded in place.
constexpr ContainingKind Containing() { return {}; }

// SEQUENCE OF and SET OF: with a length determinant, and with SIZE (low..high).
template <class Kind>
constexpr SequenceOfKind<Kind> SequenceOf(Kind element) {
  return {element};
}
template <class Kind>
constexpr SizedSequenceOfKind<Kind> SequenceOf(int64_t low, int64_t high, Kind element) {
  return {low, high, element};
}

// A list element that is read even after the end of the message: its length is kept.
template <class Kind>
constexpr EvenIfMissingKind<Kind> EvenIfMissing(Kind kind) {
  return {kind};
}

// A component whose ASN.1 identifier differs from the name of the record's member.
template <class Kind>
constexpr NamedKind<Kind> Named(const char* name, Kind kind) {
  return {name, kind};
}

// --- Places ---

// The place of a scalar in a packed record, at any alignment.
template <class T>
class Scalar {
 public:
  explicit Scalar(const void* address) : address_(const_cast<void*>(address)) {}
  T Get() const {
    T value;
    memcpy(&value, address_, sizeof value);
    return value;
  }
  void Set(T value) const { memcpy(address_, &value, sizeof value); }
  void* Address() const { return address_; }

 private:
  void* address_;
};
using Flag = Scalar<uint32_t>;

namespace detail {

template <class T>
T& MakePlace(void* address, T*) {
  return *static_cast<T*>(address);
}
template <class T>
Slot<T> MakePlace(void* address, T**) {
  return Slot<T>(address);
}
inline Scalar<uint8_t> MakePlace(void* address, uint8_t*) { return Scalar<uint8_t>(address); }
inline Scalar<uint16_t> MakePlace(void* address, uint16_t*) { return Scalar<uint16_t>(address); }
inline Scalar<uint32_t> MakePlace(void* address, uint32_t*) { return Scalar<uint32_t>(address); }
inline Scalar<int32_t> MakePlace(void* address, int32_t*) { return Scalar<int32_t>(address); }

}  // namespace detail

// The place of a member: a record by reference, a pointer by its slot, any other scalar by its address.
template <class T>
decltype(auto) PlaceOf(const void* address) {
  return detail::MakePlace(const_cast<void*>(address), static_cast<T*>(nullptr));
}

// --- Kinds that refer to another member ---

// OCTET STRING whose length is kept in `length`: of any size, or of SIZE (size).
struct SplitOctetStringKind {
  Scalar<uint32_t> length;
};
struct FixedSplitOctetStringKind {
  Scalar<uint32_t> length;
  uint32_t size;
};
inline SplitOctetStringKind OctetStringOf(Scalar<uint32_t> length) { return {length}; }
inline FixedSplitOctetStringKind OctetStringOf(Scalar<uint32_t> length, uint32_t size) { return {length, size}; }

// An inline SEQUENCE whose extension bit is kept in `flag`, a member of the enclosing record.
struct ExtendedInlineTypeKind : RecordKind {
  Flag flag;
};
inline ExtendedInlineTypeKind InlineTypeExtendedBy(Flag flag) { return {{}, flag}; }

// An addition that is read if `flag`, the flag of another addition, is set.
template <class Kind>
struct GatedKind {
  Flag flag;
  Kind kind;
};
template <class Kind>
GatedKind<Kind> GatedBy(Flag flag, Kind kind) {
  return {flag, kind};
}

// --- Types ---

enum class TypeForm : uint8_t { kSequence, kChoice, kEnumerated };

}  // namespace asn1

// The families differ in what a decoder reports. Failures in H.225.0 and H.235 types propagate to the message. Failures
// in H.245 types do not: the enclosing type continues where the failure left the reader.
constexpr bool ReportsFailures(...) { return true; }
namespace h245 {
template <class T>
constexpr bool ReportsFailures(const T*) {
  return false;
}
}  // namespace h245

}  // namespace kelvra
