// What every header with descriptions begins with: the macros that they are written with, which
// kelvra/end_descriptions.h takes back, and the headers that these need. Packed members cannot be bound to references,
// so a macro takes the address and the type of each, and its name.
//
// This header is included again for each header with descriptions, so it has no guard.

#include <stdint.h>

#include "null_choice.h"
#include "walk.h"

#if defined(__GNUC__)
#define KELVRA_INLINE __attribute__((always_inline)) inline
#elif defined(_MSC_VER)
#define KELVRA_INLINE __forceinline
#else
#define KELVRA_INLINE inline
#endif

// Opens the description of a SEQUENCE, and of a CHOICE whose index is kept in `tag`. KELVRA_END closes either. The
// enumerators of a CHOICE are in names.h.
#define KELVRA_SEQUENCE KELVRA_DESCRIPTION(kSequence)
#define KELVRA_CHOICE(tag)     \
  enum Alternative : uint32_t; \
  KELVRA_DESCRIPTION(kChoice)  \
  v.Tag(KELVRA_PLACE(tag));
#define KELVRA_END \
  return true;     \
  }

#define KELVRA_DESCRIPTION(form)                                                                   \
  static constexpr ::kelvra::asn1::TypeForm kForm = ::kelvra::asn1::TypeForm::form;                \
  template <class Record_, class Visitor_>                                                         \
  static void Walk(Record_& m, Visitor_& visitor) {                                                \
    using ::kelvra::WalkRecord;                                                                    \
    WalkRecord(m, visitor);                                                                        \
  }                                                                                                \
  template <class Record_, class Follower_>                                                        \
  KELVRA_INLINE static bool Describe([[maybe_unused]] Record_& m, [[maybe_unused]] Follower_& v) { \
    using namespace ::kelvra::asn1;

// Describes an ENUMERATED by its member and its identifiers, in order of their values.
#define KELVRA_ENUMERATED(member, ...)                                                       \
  enum Value : uint32_t;                                                                     \
  static constexpr ::kelvra::asn1::TypeForm kForm = ::kelvra::asn1::TypeForm::kEnumerated;   \
  template <class Record_, class Visitor_>                                                   \
  static void Walk(Record_& m, Visitor_& visitor) {                                          \
    constexpr const char* kIdentifiers[] = {__VA_ARGS__};                                    \
    constexpr uint32_t kCount = sizeof kIdentifiers / sizeof kIdentifiers[0];                \
    visitor.EnumeratedValue(m.member, m.member < kCount ? kIdentifiers[m.member] : nullptr); \
  }

// Declares the record of a CHOICE of NULLs: `record` (null_choice.h) under the name `name`, its number of root
// alternatives, and the identifiers of all.
#define KELVRA_NULL_CHOICE(record, name, roots, ...)              \
  struct name##Names {                                            \
    enum Alternative : uint32_t;                                  \
    static constexpr uint32_t kRoots = roots;                     \
    static constexpr const char* kAlternatives[] = {__VA_ARGS__}; \
  };                                                              \
  using name = record<name##Names>

#define KELVRA_PLACE(member) ::kelvra::asn1::PlaceOf<decltype(m.member)>(&(m.member))
#define KELVRA_LIST_PLACE(member) \
  ::kelvra::ListAt<decltype(m.member##Count), decltype(m.member)>(&(m.member##Count), &(m.member))

// A component, and one that is OPTIONAL (or has a DEFAULT): its flag, its member and its kind.
#define KELVRA_MEMBER(member, ...) \
  if (!v.Member(#member, KELVRA_PLACE(member), __VA_ARGS__)) return false
#define KELVRA_OPTIONAL(flag, member, ...) \
  if (!v.Optional(KELVRA_PLACE(flag), #member, KELVRA_PLACE(member), __VA_ARGS__)) return false
// The extension marker: what follows are extension additions, or extension alternatives of a CHOICE.
#define KELVRA_EXTENSION(flag) v.Extension(KELVRA_PLACE(flag))
#define KELVRA_ADDITION(flag, member, ...) \
  if (!v.Addition(KELVRA_PLACE(flag), #member, KELVRA_PLACE(member), __VA_ARGS__)) return false

// The same for a list: the pointer `member`, with the count before it in `memberCount`.
#define KELVRA_MEMBER_LIST(member, ...) \
  if (!v.Member(#member, KELVRA_LIST_PLACE(member), __VA_ARGS__)) return false
#define KELVRA_OPTIONAL_LIST(flag, member, ...) \
  if (!v.Optional(KELVRA_PLACE(flag), #member, KELVRA_LIST_PLACE(member), __VA_ARGS__)) return false
#define KELVRA_ADDITION_LIST(flag, member, ...) \
  if (!v.Addition(KELVRA_PLACE(flag), #member, KELVRA_LIST_PLACE(member), __VA_ARGS__)) return false

// The additions that follow belong to the senders of H.225.0 versions `first` to `last` only.
#define KELVRA_VERSIONS(first, last) v.Versions(first, last)

// The alternatives of a CHOICE, in order of their tags: a member of the union, or a NULL by its name.
#define KELVRA_ALTERNATIVE(member, ...) \
  if (!v.Alternative(#member, KELVRA_PLACE(member), __VA_ARGS__)) return false
#define KELVRA_NULL(name) \
  if (!v.NullAlternative(#name)) return false
// A known extension alternative whose value is passed over, like that of an unknown one.
#define KELVRA_PASSED_OVER(name) \
  if (!v.PassedOver(#name)) return false
// The only component of a list type, whose record is a count and a pointer.
#define KELVRA_ELEMENTS(count, elements, ...)                                                             \
  if (!v.Member("", ::kelvra::ListAt<decltype(m.count), decltype(m.elements)>(&(m.count), &(m.elements)), \
                __VA_ARGS__))                                                                             \
  return false
