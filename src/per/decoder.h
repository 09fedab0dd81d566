// The decoder that follows the description of a type (kelvra/description.h): the PER rules for values, lists, SEQUENCEs
// and CHOICEs, once each.
//
// Several passes follow the description of a SEQUENCE: to count its flags, to take its presence bits, to read its root,
// to take the presence bits of its additions, and to read these. All are inline, so whatever a pass does not use folds
// away, and bounds and counts are constants.
//
// `R` is the reader: a PerReader, or one that reports what it reads (observer/observed_reader.h).
#pragma once

#include <type_traits>
#include <utility>

#include "codec/status.h"
#include "kelvra/null_choice.h"
#include "kelvra/walk.h"
#include "per/open_type.h"
#include "per/primitives.h"
#include "per/values.h"

namespace kelvra {

template <class T>
inline constexpr bool kReportsFailures = ReportsFailures(static_cast<const T*>(nullptr));

template <class T, class = void>
inline constexpr bool kIsNullChoice = false;
template <class T>
inline constexpr bool kIsNullChoice<T, std::void_t<typename T::AlternativeNames>> = true;

// Types through which others nest may request decoding inside the enclosing decoder: that saves stack.
template <class T, class = void>
inline constexpr bool kIsDecodedInPlace = false;
template <class T>
inline constexpr bool kIsDecodedInPlace<T, std::void_t<decltype(T::kDecodedInPlace)>> = true;

// Decodes a named type. For H.225.0 and H.235 the result is kExhausted if nothing is left on entry. Defined in
// per/define_decoder.h, and instantiated once per type.
template <class T, class R>
Status Decode(T& m, R& r);

// Decodes an inline type.
template <class T, class R>
static Status DecodeInline(T& m, R& r);

// The common part of both.
template <class T, class R>
[[gnu::always_inline]] inline Status DecodeType(T& m, R& r);

// --- Open types that are not decoded ---

// Skips unknown open types.
template <class R>
[[gnu::always_inline]] inline void SkipOpenTypes(R& r, int32_t count) {
  PerSkipOpenTypes(r, count);
  if constexpr (R::kObserves) r.LeftOpenType();
}

// Skips the open type of a known NULL.
template <class R>
[[gnu::always_inline]] inline void PassOverOpenType(R& r) {
  PerPassOverOpenType(r);
  if constexpr (R::kObserves) r.LeftOpenType();
}

// Skips the additions of a SEQUENCE with no known ones.
template <class R>
[[gnu::always_inline]] inline void SkipExtensionAdditions(R& r) {
  PerSkipExtensionAdditions(r);
  if constexpr (R::kObserves) r.LeftOpenType();
}

// --- Lists ---

// The properties of a list's elements.
template <class R>
struct ElementType {
  uint32_t octets;
  bool isReadPastTheEnd;  // read even after the end of the message: the element then fails, or keeps its length
  Status (*read)(void* element, R& r);
};

// SEQUENCE OF in an open type. The count keeps as many low bits as the record has room for. The first failure ends the
// list; elements that the message does not reach stay zero. A failure that propagates leaves its slot in the ring
// taken.
template <bool kReports, class Count, class R>
[[gnu::noinline]] Status ReadOpenSequenceOf(R& r, ListView<uint8_t, Count> list, const ElementType<R>& type) {
  const auto readElements = [&]() -> Status {
    list.SetSize(PerReadLength(r));
    uint32_t count = list.Size();
    if (count == 0) return kDecoded;
    auto* element = static_cast<uint8_t*>(PerAllocate(r, uint64_t{count} * type.octets));
    list.Elements().Set(element);
    if (element == nullptr) return kRefused;
    for (; count != 0; --count, element += type.octets) {
      if (!type.isReadPastTheEnd && PerAtEnd(r)) break;
      KELVRA_TRY(type.read(element, r));
    }
    return kDecoded;
  };
  OpenTypeBegin(r);
  const Status status = readElements();
  if constexpr (kReports) KELVRA_TRY(status);
  OpenTypeEnd(r);
  return kDecoded;
}

// --- Values ---

// Whether one shared function reads the elements of a list of this kind. Elements with bounds have their own code, so
// that the bounds fold.
template <class Kind>
inline constexpr bool kIsSharedList = false;
template <class Kind>
inline constexpr bool kIsSharedList<asn1::SequenceOfKind<Kind>> = std::is_empty_v<Kind>;

// Whether a list element is read even after the end of the message: it then fails, or keeps its length.
template <class Element, class Kind>
inline constexpr bool kElementReports = false;
template <class Element>
inline constexpr bool kElementReports<Element, asn1::DefinedTypeKind> = kReportsFailures<Element>;
template <class Element>
inline constexpr bool kElementReports<Element, asn1::InlineTypeKind> = kReportsFailures<Element>;
template <class Element, class Kind>
inline constexpr bool kElementReports<Element, asn1::AliasKind<Kind>> = true;
template <class Element, class Kind>
inline constexpr bool kElementReports<Element, asn1::EvenIfMissingKind<Kind>> = true;

// Reads one value by its kind. `kReports`: whether the enclosing type propagates failures.
template <bool kReports, class R>
class ValueReader {
 public:
  explicit ValueReader(R& reader) : r(reader) {}

  template <class Place, class Kind>
  [[gnu::always_inline]] Status Read(const char*, Place&& place, asn1::NamedKind<Kind> named) {
    return Read(named.name, place, named.kind);
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] Status Read(const char* name, Place&& place, Kind kind) {
    if constexpr (R::kObserves) {
      return ReadObserved(name, place, kind);
    } else {
      return Value(place, kind);
    }
  }

  // Compiled once per kind and place, not per component: tools can wait, compilers take long.
  template <class Place, class Kind>
  [[gnu::noinline]] Status ReadObserved(const char* name, Place& place, Kind kind) {
    const typename R::Component component(r, name, place, kind);
    return Value(place, kind);
  }

  // A value in its open type. A failure that propagates leaves its slot in the ring taken.
  template <class Place, class Kind>
  [[gnu::always_inline]] Status ReadOpen(const char* name, Place&& place, Kind kind) {
    if constexpr (R::kObserves) {
      return ReadOpenObserved(name, place, kind);
    } else if constexpr (kIsSharedList<Kind>) {
      const auto list = ListOf(place);
      return ReadOpenSequenceOf<kReports>(r, Untyped(list), TypeOfElements(list, kind.element));
    } else {
      return ReadOpenHere(name, place, kind);
    }
  }

 private:
  template <class Place, class Kind>
  [[gnu::noinline]] Status ReadOpenObserved(const char* name, Place& place, Kind kind) {
    return ReadOpenHere(name, place, kind);
  }

  template <class Place, class Kind>
  [[gnu::always_inline]] Status ReadOpenHere(const char* name, Place&& place, Kind kind) {
    OpenTypeBegin(r);
    if constexpr (R::kObserves) r.EnteredOpenTypeOfNext();
    const Status status = Read(name, place, kind);
    if constexpr (kReports) KELVRA_TRY(status);
    OpenTypeEnd(r);
    if constexpr (R::kObserves) r.LeftOpenType();
    return kDecoded;
  }

  [[gnu::always_inline]] Status Value(asn1::Flag place, asn1::BooleanKind) {
    place.Set(PerReadBit(r));
    return kDecoded;
  }
  template <class Place>
  [[gnu::always_inline]] Status Value(Place&&, asn1::NullKind) {
    return kDecoded;
  }
  template <class T>
  [[gnu::always_inline]] Status Value(asn1::Scalar<T> place, asn1::IntegerKind kind) {
    place.Set(PerReadNumber<T>(r, kind.low, kind.high));
    return kDecoded;
  }
  template <class T>
  [[gnu::always_inline]] Status Value(asn1::Scalar<T> place, asn1::ExtensibleIntegerKind kind) {
    place.Set(static_cast<T>(PerReadExtensibleNumber(r, kind.low, kind.high)));
    return kDecoded;
  }
  template <class T>
  [[gnu::always_inline]] Status Value(asn1::Scalar<T> place, asn1::UnconstrainedIntegerKind) {
    place.Set(static_cast<T>(PerReadInteger(r)));
    return kDecoded;
  }
  [[gnu::always_inline]] Status Value(ObjectIdentifierValue& value, asn1::ObjectIdentifierKind) {
    PerReadObjectIdentifier(value, r);
    return kDecoded;
  }
  template <class String, class Kind>
  [[gnu::always_inline]] auto Value(String& value, Kind kind)
      -> decltype(PerReadString(value, std::declval<PerReader&>(), kind), kDecoded) {
    PerReadString(value, r, kind);
    return kDecoded;
  }
  // A kind that a family defines.
  template <class Place, class Kind>
  [[gnu::always_inline]] auto Value(Place& place, Kind kind) -> decltype(DecodeKind(place, std::declval<R&>(), kind)) {
    return DecodeKind(place, r, kind);
  }
  [[gnu::always_inline]] Status Value(OctetStringValue& value, asn1::CheckedIA5StringKind kind) {
    const auto length = PerReadNumber<uint32_t>(r, kind.low, kind.high);
    if (length > kind.high) {
      if constexpr (R::kObserves) r.Stop(PerCause::kNumberTooWide);
      return kExhausted;
    }
    value.length = length;
    value.data = PerReadOctets(r, length);
    return kDecoded;
  }

  // A failure in an H.245 type stays in it, but an enclosing H.225.0 type propagates the status that it returns.
  template <class T>
  [[gnu::always_inline]] Status Value(T& record, asn1::DefinedTypeKind) {
    if constexpr (kReports && !kReportsFailures<T>) {
      if (PerAtEnd(r)) {
        if constexpr (R::kObserves) r.Stop(PerCause::kEndOfMessage);
        return kExhausted;
      }
    }
    const Status status = DecodeDefined(record);
    return kReports ? status : kDecoded;
  }
  template <class T>
  [[gnu::always_inline]] Status Value(T& record, asn1::InlineTypeKind) {
    if constexpr (kIsNullChoice<T>) {
      return Value(record, asn1::DefinedType());
    } else {
      const Status status = kIsDecodedInPlace<T> ? DecodeType(record, r) : DecodeInline(record, r);
      return kReports ? status : kDecoded;
    }
  }
  template <class T>
  [[gnu::always_inline]] Status Value(T& record, asn1::ContainingKind) {
    OpenTypeBegin(r);
    if constexpr (R::kObserves) r.EnteredOpenType();
    static_cast<void>(Decode(record, r));
    OpenTypeEnd(r);
    if constexpr (R::kObserves) r.LeftOpenType();
    return kDecoded;
  }
  template <class T>
  [[gnu::always_inline]] Status Value(Slot<T> slot, asn1::IndirectKind) {
    auto* record = static_cast<T*>(PerAllocate(r, sizeof(T)));
    slot.Set(record);
    return record == nullptr ? kDecoded : Value(*record, asn1::DefinedType());
  }
  template <class T>
  [[gnu::always_inline]] Status Value(T& record, asn1::ExtendedInlineTypeKind kind) {
    kind.flag.Set(PerReadBit(r));
    KELVRA_TRY(Value(record, asn1::InlineType()));
    if (kind.flag.Get() != 0) SkipExtensionAdditions(r);
    return kDecoded;
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] Status Value(Place& place, asn1::EvenIfMissingKind<Kind> element) {
    return Value(place, element.kind);
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] Status Value(Place& place, asn1::AliasKind<Kind> alias) {
    if (PerAtEnd(r)) return kExhausted;
    return Value(place, alias.kind);
  }

  template <class Place, class Kind>
  [[gnu::always_inline]] Status Value(Place& place, asn1::SequenceOfKind<Kind> kind) {
    const auto list = ListOf(place);
    return ReadTyped(list, PerReadLength(r), kind.element);
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] Status Value(Place& place, asn1::SizedSequenceOfKind<Kind> kind) {
    const auto list = ListOf(place);
    return ReadTyped(list, PerReadNumber<uint32_t>(r, kind.low, kind.high), kind.element);
  }

  // A CHOICE of NULLs has a small decoder, which does its own entry check.
  template <class T>
  [[gnu::always_inline]] Status DecodeDefined(T& record) {
    if constexpr (kIsNullChoice<T>) {
      return DecodeByHand(record, r);
    } else if constexpr (kIsDecodedInPlace<T>) {
      if (kReportsFailures<T> && PerAtEnd(r)) return kExhausted;
      return DecodeType(record, r);
    } else {
      return Decode(record, r);
    }
  }

  template <class Element, class Count>
  static ListView<uint8_t, Count> Untyped(ListView<Element, Count> list) {
    return {list.CountAddress(), list.Elements().Address()};
  }

  template <class Element, class Kind>
  static Status ReadElement(void* element, R& r) {
    return ValueReader(r).Read(nullptr, asn1::PlaceOf<Element>(element), Kind());
  }
  template <class Element, class Kind>
  static constexpr ElementType<R> kTypeOfElements = {sizeof(Element), kElementReports<Element, Kind>,
                                                     ReadElement<Element, Kind>};
  template <class Element, class Count, class Kind>
  static const ElementType<R>& TypeOfElements(ListView<Element, Count>, Kind) {
    return kTypeOfElements<Element, Kind>;
  }

  // Decodes an element of a kDecodedInPlace type outside the stack frame of its list.
  template <class Element>
  [[gnu::noinline]] static void DecodeApart(R& r, Element& element) {
    static_cast<void>(DecodeType(element, r));
  }

  // Reads a list with its own element code; otherwise like ReadOpenSequenceOf.
  template <class Element, class Count, class Kind>
  Status ReadTyped(ListView<Element, Count> list, uint32_t count, Kind kind) {
    list.SetSize(count);
    if (list.Size() == 0) return kDecoded;
    auto* elements = static_cast<Element*>(PerAllocate(r, uint64_t{list.Size()} * sizeof(Element)));
    list.Elements().Set(elements);
    if (elements == nullptr) return kRefused;
    for (Element& element : list) {
      if constexpr (!kElementReports<Element, Kind>) {
        if (PerAtEnd(r)) {
          if constexpr (R::kObserves) r.Stop(PerCause::kEndOfMessage);
          break;
        }
      }
      if constexpr (kIsDecodedInPlace<Element> && !R::kObserves) {
        static_assert(!kReportsFailures<Element>);
        DecodeApart(r, element);
      } else {
        KELVRA_TRY(Read(nullptr, asn1::PlaceOf<Element>(&element), kind));
      }
    }
    return kDecoded;
  }

  R& r;
};

// --- SEQUENCE ---

// The default for what a pass over a description ignores.
struct IdlePass {
  template <class Place, class Kind>
  [[gnu::always_inline]] bool Member(const char*, Place&&, Kind) {
    return true;
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] bool Optional(asn1::Flag, const char*, Place&&, Kind) {
    return true;
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] bool Addition(asn1::Flag, const char*, Place&&, Kind) {
    return true;
  }
  [[gnu::always_inline]] void Extension(asn1::Flag) {}
  [[gnu::always_inline]] bool Versions(int32_t, int32_t) const { return true; }
};

// Counts the flags of a SEQUENCE, and notes which components are BOOLEANs: consecutive ones are read at once.
struct FlagCount : IdlePass {
  uint32_t optionals = 0;
  uint32_t extensionBits = 0;
  uint32_t additions = 0;
  bool isGated = false;
  uint32_t components = 0;
  uint64_t booleans = 0;  // one bit per component

  template <class Place, class Kind>
  [[gnu::always_inline]] bool Member(const char*, Place&&, Kind) {
    if constexpr (std::is_same_v<Kind, asn1::BooleanKind>) booleans |= uint64_t{1} << components;
    ++components;
    return true;
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] bool Member(const char* name, Place&& place, asn1::NamedKind<Kind> named) {
    return Member(name, place, named.kind);
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] bool Optional(asn1::Flag, const char*, Place&&, Kind) {
    ++optionals;
    ++components;
    return true;
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] bool Addition(asn1::Flag, const char*, Place&&, Kind) {
    ++additions;
    return true;
  }
  [[gnu::always_inline]] void Extension(asn1::Flag) { extensionBits = 1; }
  [[gnu::always_inline]] bool Versions(int32_t, int32_t) {
    isGated = true;
    return true;
  }

  // How many consecutive components from `index` are BOOLEANs.
  [[gnu::always_inline]] uint32_t BooleansFrom(uint32_t index) const {
    const uint64_t others = ~(booleans >> index);
    return static_cast<uint32_t>(__builtin_ctzll(others));
  }
};

struct PresencePass : IdlePass {
  uint32_t isExtended;
  PerFlags flags;
  PresencePass(uint32_t extended, PerFlags presence) : isExtended(extended), flags(presence) {}

  template <class Place, class Kind>
  [[gnu::always_inline]] bool Optional(asn1::Flag flag, const char*, Place&&, Kind) {
    flag.Set(flags.Next());
    return true;
  }
  [[gnu::always_inline]] void Extension(asn1::Flag flag) { flag.Set(isExtended); }
};

template <bool kReports, class R>
struct RootPass : IdlePass {
  R& r;
  const FlagCount& count;
  PerFlags flags;  // BOOLEANs that are read but not yet stored
  uint32_t flagsLeft;
  uint32_t component = 0;
  Status status = kDecoded;
  RootPass(R& reader, const FlagCount& flagCount, PerFlags booleans, uint32_t booleansRead)
      : r(reader), count(flagCount), flags(booleans), flagsLeft(booleansRead) {}

  template <class Place, class Kind>
  [[gnu::always_inline]] bool Member(const char* name, Place&& place, Kind kind) {
    ++component;
    status = ValueReader<kReports, R>(r).Read(name, place, kind);
    return status == kDecoded;
  }
  template <class Kind>
  [[gnu::always_inline]] bool Member(const char*, asn1::Flag place, asn1::NamedKind<Kind> named) {
    return Member(named.name, place, named.kind);
  }
  [[gnu::always_inline]] bool Member(const char* name, asn1::Flag place, asn1::BooleanKind kind) {
    if constexpr (R::kObserves) {
      return Member<asn1::Flag>(name, static_cast<asn1::Flag&&>(place), kind);
    } else {
      if (flagsLeft == 0) {
        flagsLeft = count.BooleansFrom(component);
        flags = flagsLeft == 1 ? PerFlags(PerReadBit(r) << 31) : PerReadFlags(r, flagsLeft);
      }
      place.Set(flags.Next());
      --flagsLeft;
      ++component;
      return true;
    }
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] bool Optional(asn1::Flag flag, const char* name, Place&& place, Kind kind) {
    ++component;
    if (flag.Get() == 0) return true;
    status = ValueReader<kReports, R>(r).Read(name, place, kind);
    return status == kDecoded;
  }
};

// Additions that the sender's version does not define count as unknown.
template <class R>
struct AdditionPresencePass : IdlePass {
  R& r;
  PerFlags flags;
  AdditionPresencePass(R& reader, PerFlags presence) : r(reader), flags(presence) {}

  template <class Place, class Kind>
  [[gnu::always_inline]] bool Addition(asn1::Flag flag, const char*, Place&&, Kind) {
    flag.Set(flags.Next());
    return true;
  }
  [[gnu::always_inline]] bool Versions(int32_t first, int32_t last) const {
    return r.senderVersion >= first && r.senderVersion <= last;
  }
};

template <bool kReports, class R>
struct AdditionPass : IdlePass {
  R& r;
  Status status = kDecoded;
  explicit AdditionPass(R& reader) : r(reader) {}

  template <class Place, class Kind>
  [[gnu::always_inline]] bool Addition(asn1::Flag flag, const char* name, Place&& place, Kind kind) {
    if (flag.Get() == 0) return true;
    status = ValueReader<kReports, R>(r).ReadOpen(name, place, kind);
    return status == kDecoded;
  }
  template <class Place, class Kind>
  [[gnu::always_inline]] bool Addition(asn1::Flag, const char* name, Place&& place, asn1::GatedKind<Kind> gated) {
    return Addition(gated.flag, name, place, gated.kind);
  }
};

template <class T, class R>
[[gnu::always_inline]] inline Status DecodeAdditions(T& m, R& r, const FlagCount& count) {
  constexpr bool kReports = kReportsFailures<T>;
  if (count.additions == 0) {
    SkipExtensionAdditions(r);
    return kDecoded;
  }
  int32_t bitmap = PerReadBitmapLength(r);
  // H.245 keeps the length in 8 bits: a coded 255 gives 0.
  if constexpr (!kReports) bitmap = static_cast<uint8_t>(bitmap);
  AdditionPresencePass<R> presence(r, PerReadKnownAdditions(r, bitmap, static_cast<int32_t>(count.additions)));
  static_cast<void>(T::Describe(m, presence));
  int32_t unknown = PerCountUnknownAdditions(r, bitmap);
  if (count.isGated) unknown += presence.flags.CountLeft();
  // All SEQUENCEs of an H.225.0 message share one counter. A SEQUENCE decoded among these additions overwrites it, and
  // must: the last count written decides how many additions are skipped.
  if constexpr (kReports) r.extensionPresentCount = unknown;
  AdditionPass<kReports, R> additions(r);
  if (!T::Describe(m, additions)) return additions.status;
  SkipOpenTypes(r, kReports ? r.extensionPresentCount : unknown);
  return kDecoded;
}

template <class T, class R>
[[gnu::always_inline]] inline Status DecodeSequence(T& m, R& r) {
  FlagCount count;
  static_cast<void>(T::Describe(m, count));
  const uint32_t preamble = count.extensionBits + count.optionals;
  const uint32_t booleans = R::kObserves ? 0 : count.BooleansFrom(0);
  const uint32_t leading = preamble + booleans <= 32 ? booleans : 0;
  const uint32_t bits = preamble + leading;
  uint32_t isExtended = 0;
  PerFlags flags(0);
  if (bits == 1) {
    flags = PerFlags(PerReadBit(r) << 31);
  } else if (bits != 0) {
    flags = PerReadFlags(r, bits);
  }
  if (count.extensionBits != 0) isExtended = flags.Next();
  PresencePass presence(isExtended, flags);
  static_cast<void>(T::Describe(m, presence));
  RootPass<kReportsFailures<T>, R> root(r, count, presence.flags, leading);
  if (!T::Describe(m, root)) return root.status;
  if (isExtended == 0) return kDecoded;
  return DecodeAdditions(m, r, count);
}

// --- CHOICE ---

// Decodes the alternative with a given number (asn1::AlternativeNumber).
template <bool kReports, class R>
struct AlternativePass {
  R& r;
  uint32_t chosen;
  uint32_t next = 0;
  Status status = kDecoded;
  AlternativePass(R& reader, uint32_t number) : r(reader), chosen(number) {}

  [[gnu::always_inline]] void Tag(asn1::Scalar<uint8_t>) {}
  [[gnu::always_inline]] void Extension(asn1::Flag) { next = asn1::kFirstExtension; }
  template <class Place, class Kind>
  [[gnu::always_inline]] bool Alternative(const char* name, Place&& place, Kind kind) {
    if (chosen != next++) return true;
    if (next > asn1::kFirstExtension) {
      status = ValueReader<kReports, R>(r).ReadOpen(name, place, kind);
    } else {
      status = ValueReader<kReports, R>(r).Read(name, place, kind);
    }
    return false;
  }
  [[gnu::always_inline]] bool NullAlternative(const char*) {
    if (chosen != next++) return true;
    if (next > asn1::kFirstExtension) PassOverOpenType(r);
    return false;
  }
  [[gnu::always_inline]] bool PassedOver(const char*) {
    if (chosen != next++) return true;
    SkipOpenTypes(r, 1);
    return false;
  }
};

// The header of a CHOICE: extension bit and index, read at once for a root alternative.
template <class R>
[[gnu::always_inline]] inline uint32_t ReadChoiceHeader(R& r, const asn1::ChoiceIndex& choice, bool& isExtension) {
  isExtension = false;
  if (!choice.isExtensible) {
    const uint32_t index = PerReadConstrainedWholeNumber(r, choice.roots);
    choice.tag.Set(static_cast<uint8_t>(index));
    return index;
  }
  const BitOffset offset = r.bitOffset;
  if (PerHasOctets(r, 2) && !PerPeekBit(r, offset)) [[likely]] {
    const uint32_t index = PerTakeBits(r, offset, 1 + PerBitsOfRange(choice.roots), 2);
    choice.extension.Set(0);
    choice.tag.Set(static_cast<uint8_t>(index));
    return index;
  }
  isExtension = PerReadBit(r) != 0;
  choice.extension.Set(isExtension ? 1 : 0);
  const uint32_t index = isExtension ? PerReadNormallySmall(r) : PerReadConstrainedWholeNumber(r, choice.roots);
  choice.tag.Set(static_cast<uint8_t>(index));
  return index;
}

// A type may declare that the index of an extension alternative is not kept: the tag is then 0.
template <class T, class = void>
inline constexpr bool kKeepsExtensionIndex = true;
template <class T>
inline constexpr bool kKeepsExtensionIndex<T, std::void_t<decltype(T::kExtensionIndexIsNotKept)>> = false;

template <class T, class R>
[[gnu::always_inline]] inline Status DecodeChoice(T& m, R& r) {
  asn1::ChoiceIndex choice;
  static_cast<void>(T::Describe(m, choice));
  bool isExtension = false;
  const uint32_t index = ReadChoiceHeader(r, choice, isExtension);
  if (isExtension && !kKeepsExtensionIndex<T>) choice.tag.Set(0);
  AlternativePass<kReportsFailures<T>, R> alternatives(r, asn1::AlternativeNumber(isExtension, index));
  if (!T::Describe(m, alternatives)) return alternatives.status;
  if (!isExtension) {
    if constexpr (R::kObserves) r.Stop(PerCause::kUndefinedIndex);
    return kMalformed;
  }
  SkipOpenTypes(r, 1);
  return kDecoded;
}

// --- CHOICEs of NULLs ---

// Peculiarities that a list of names may declare.
template <class Names, class = void>
inline constexpr bool kIsReadAtTheEnd = false;
template <class Names>
inline constexpr bool kIsReadAtTheEnd<Names, std::void_t<decltype(Names::kIsReadAtTheEnd)>> = true;
template <class Names, class = void>
inline constexpr bool kAsksAfterExtensionBit = false;
template <class Names>
inline constexpr bool kAsksAfterExtensionBit<Names, std::void_t<decltype(Names::kEntryCheckFollowsExtensionBit)>> =
    true;

// The alternative `index` of a CHOICE of NULLs.
template <uint32_t kRoots, uint32_t kExtensions, class R>
Status DecodeNull(R& r, uint32_t index, bool isExtension) {
  if (!isExtension) {
    if constexpr (R::kObserves) {
      if (index >= kRoots) r.Stop(PerCause::kUndefinedIndex);
    }
    return index < kRoots ? kDecoded : kMalformed;
  }
  if (index < kExtensions) {
    PassOverOpenType(r);
  } else {
    SkipOpenTypes(r, 1);
  }
  return kDecoded;
}

// Depends only on the numbers of alternatives, so CHOICEs with equal numbers share a decoder.
template <uint32_t kRoots, uint32_t kExtensions, class R>
Status DecodeNulls(R& r, asn1::Scalar<uint8_t> tag, asn1::Flag extension) {
  bool isExtension = false;
  const uint32_t index = ReadChoiceHeader(r, asn1::ChoiceIndex{tag, extension, true, kRoots}, isExtension);
  return DecodeNull<kRoots, kExtensions>(r, index, isExtension);
}

template <class Names, class R>
[[gnu::always_inline]] inline Status DecodeByHand(NullChoice<Names>& m, R& r) {
  const auto tag = asn1::Scalar<uint8_t>(&m.choiceTag);
  const auto extension = asn1::Flag(&m.isExtension);
  if constexpr (kAsksAfterExtensionBit<Names>) {
    const bool isExtension = PerReadBit(r) != 0;
    extension.Set(isExtension ? 1 : 0);
    if (PerAtEnd(r)) return kExhausted;
    const uint32_t index = isExtension ? PerReadNormallySmall(r) : PerReadConstrainedWholeNumber(r, Names::kRoots);
    tag.Set(static_cast<uint8_t>(index));
    return DecodeNull<Names::kRoots, ExtensionsOf<Names>()>(r, index, isExtension);
  } else {
    if (!kIsReadAtTheEnd<Names> && PerAtEnd(r)) return kExhausted;
    KELVRA_TRY((DecodeNulls<Names::kRoots, ExtensionsOf<Names>()>(r, tag, extension)));
    if (!kKeepsExtensionIndex<Names> && extension.Get() != 0) tag.Set(0);
    return kDecoded;
  }
}

template <class Names, class R>
[[gnu::always_inline]] inline Status DecodeByHand(h245::NullChoice<Names>& m, R& r) {
  return DecodeNulls<Names::kRoots, ExtensionsOf<Names>()>(r, asn1::Scalar<uint8_t>(&m.choiceTag),
                                                           asn1::Flag(&m.isExtension));
}

template <class Names, class R>
[[gnu::always_inline]] inline Status DecodeByHand(h245::UnextensibleNullChoice<Names>& m, R& r) {
  m.choiceTag = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, Names::kRoots));
  return kDecoded;
}

// --- Types ---

// Whether a type has a hand-written decoder (h225/decoders_by_hand.h, h245/decoders_by_hand.h).
template <class T, class R, class = void>
inline constexpr bool kIsDecodedByHand = false;
template <class T, class R>
inline constexpr bool
    kIsDecodedByHand<T, R, std::void_t<decltype(DecodeByHand(std::declval<T&>(), std::declval<R&>()))>> = true;

// Recursive types declare themselves; each level is counted.
template <class T, class = void>
inline constexpr bool kIsRecursive = false;
template <class T>
inline constexpr bool kIsRecursive<T, std::void_t<decltype(T::kRecursive)>> = true;

template <class T, class R>
[[gnu::always_inline]] inline Status DecodeDescribed(T& m, R& r) {
  if constexpr (T::kForm == asn1::TypeForm::kSequence) {
    return DecodeSequence(m, r);
  } else {
    return DecodeChoice(m, r);
  }
}

template <class T, class R>
[[gnu::always_inline]] inline Status DecodeType(T& m, R& r) {
  if constexpr (kIsDecodedByHand<T, R>) {
    return DecodeByHand(m, r);
  } else if constexpr (kIsRecursive<T>) {
    const RecursionLevel level(r);
    if (level.TooDeep()) {
      if constexpr (R::kObserves) r.Stop(PerCause::kTooDeep);
      if constexpr (!kReportsFailures<T>) PerMoveToEnd(r, PerCause::kTooDeep);
      return kMalformed;
    }
    return DecodeDescribed(m, r);
  } else {
    return DecodeDescribed(m, r);
  }
}

template <class T, class R>
static Status DecodeInline(T& m, R& r) {
  return DecodeType(m, r);
}

}  // namespace kelvra
