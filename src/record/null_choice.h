// The record of every CHOICE whose alternatives are all NULL.
#pragma once

#include <stdint.h>

#include "walk.h"

namespace kelvra {

#pragma pack(push, 1)

// Of H.225.0 and H.235. `Names` holds the identifiers in kAlternatives, the kRoots root alternatives
// first.
template <class Names>
struct NullChoice {
  uint8_t choiceTag;
  uint8_t empty;
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    WalkNullChoice<Names>(v, m.isExtension, m.choiceTag);
  }
};

namespace h245 {

// Of H.245, where the extension bit stands first.
template <class Names>
struct NullChoice {
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
struct RootNullChoice {
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
