// Records of CHOICEs whose alternatives are all NULL. A list of names describes them:
//
//   KELVRA_NULL_CHOICE(NullChoice, CallModel, 2, "direct", "gatekeeperRouted");
//
// has two root alternatives, which come first. The record derives from its list and so has the enumerators that
// names.h defines there.
#pragma once

#include <stdint.h>

namespace kelvra {

template <uint32_t kCount>
constexpr uint32_t CountOf(const char* const (&)[kCount]) {
  return kCount;
}

// The number of known extension alternatives of a CHOICE of NULLs.
template <class Names>
constexpr uint32_t ExtensionsOf() {
  return CountOf(Names::kAlternatives) - Names::kRoots;
}

// Reports a CHOICE of NULLs to a visitor.
template <class Names, class Visitor>
void WalkNullChoice(Visitor& visitor, uint32_t isExtension, uint32_t tag) {
  if (isExtension == 0) {
    if (tag < Names::kRoots) return visitor.Null(Names::kAlternatives[tag]);
    return visitor.UnknownRoot(tag);
  }
  if (tag < ExtensionsOf<Names>()) return visitor.Null(Names::kAlternatives[Names::kRoots + tag]);
  visitor.UnknownExtension(tag);
}

#pragma pack(push, 1)

// For H.225.0 and H.235.
template <class Names>
struct NullChoice : Names {
  using AlternativeNames = Names;

  uint8_t choiceTag;
  uint8_t empty;
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    WalkNullChoice<Names>(v, m.isExtension, m.choiceTag);
  }
};

namespace h245 {

// For H.245, whose records begin with the extension bit.
template <class Names>
struct NullChoice : Names {
  using AlternativeNames = Names;

  uint32_t isExtension;
  uint8_t choiceTag;
  uint8_t empty;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    WalkNullChoice<Names>(v, m.isExtension, m.choiceTag);
  }
};

// The same without an extension marker.
template <class Names>
struct UnextensibleNullChoice : Names {
  using AlternativeNames = Names;

  uint8_t choiceTag;
  uint8_t empty;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    WalkNullChoice<Names>(v, 0, m.choiceTag);
  }
};

}  // namespace h245

#pragma pack(pop)

}  // namespace kelvra
