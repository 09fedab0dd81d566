// Defines the macros for descriptions and includes the headers that they need; kelvra/end_descriptions.h undefines
// them. References cannot bind to packed members, so a macro takes each member's address, type and name.
//
// Every header with descriptions includes this one, so it has no guard.

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

// Open the description of a SEQUENCE, or of a CHOICE whose index is kept in `tag`. KELVRA_END closes it. The
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

// Describes an ENUMERATED by its member and its identifiers, in value order.
#define KELVRA_ENUMERATED(member, ...)                                                       \
  enum Value : uint32_t;                                                                     \
  static constexpr ::kelvra::asn1::TypeForm kForm = ::kelvra::asn1::TypeForm::kEnumerated;   \
  template <class Record_, class Visitor_>                                                   \
  static void Walk(Record_& m, Visitor_& visitor) {                                          \
    constexpr const char* kIdentifiers[] = {__VA_ARGS__};                                    \
    constexpr uint32_t kCount = sizeof kIdentifiers / sizeof kIdentifiers[0];                \
    visitor.EnumeratedValue(m.member, m.member < kCount ? kIdentifiers[m.member] : nullptr); \
  }

// Declares the record of a CHOICE of NULLs: the template `record` (null_choice.h), its name, its number of root
// alternatives, and all identifiers.
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

// A mandatory component, and an OPTIONAL or DEFAULT one: its flag, its member and its kind.
#define KELVRA_MEMBER(member, ...) \
  if (!v.Member(#member, KELVRA_PLACE(member), __VA_ARGS__)) return false
#define KELVRA_OPTIONAL(flag, member, ...) \
  if (!v.Optional(KELVRA_PLACE(flag), #member, KELVRA_PLACE(member), __VA_ARGS__)) return false
// The extension marker. Extension additions, or extension alternatives of a CHOICE, follow.
#define KELVRA_EXTENSION(flag) v.Extension(KELVRA_PLACE(flag))
#define KELVRA_ADDITION(flag, member, ...) \
  if (!v.Addition(KELVRA_PLACE(flag), #member, KELVRA_PLACE(member), __VA_ARGS__)) return false

// The same for a list: the pointer `member`, and its count `memberCount`.
#define KELVRA_MEMBER_LIST(member, ...) \
  if (!v.Member(#member, KELVRA_LIST_PLACE(member), __VA_ARGS__)) return false
#define KELVRA_OPTIONAL_LIST(flag, member, ...) \
  if (!v.Optional(KELVRA_PLACE(flag), #member, KELVRA_LIST_PLACE(member), __VA_ARGS__)) return false
#define KELVRA_ADDITION_LIST(flag, member, ...) \
  if (!v.Addition(KELVRA_PLACE(flag), #member, KELVRA_LIST_PLACE(member), __VA_ARGS__)) return false

// Only senders of H.225.0 versions `first` to `last` use the additions that follow.
#define KELVRA_VERSIONS(first, last) v.Versions(first, last)

// The alternatives of a CHOICE in tag order: a member of the union, or a NULL by its name.
#define KELVRA_ALTERNATIVE(member, ...) \
  if (!v.Alternative(#member, KELVRA_PLACE(member), __VA_ARGS__)) return false
#define KELVRA_NULL(name) \
  if (!v.NullAlternative(#name)) return false
// A known extension alternative whose value is skipped like that of an unknown one.
#define KELVRA_PASSED_OVER(name) \
  if (!v.PassedOver(#name)) return false
// The only component of a list type, whose record is a count and a pointer.
#define KELVRA_ELEMENTS(count, elements, ...)                                                             \
  if (!v.Member("", ::kelvra::ListAt<decltype(m.count), decltype(m.elements)>(&(m.count), &(m.elements)), \
                __VA_ARGS__))                                                                             \
  return false
