// The record of every H.225.0 and H.235 CHOICE whose alternatives are all NULL.
#pragma once

#include <stdint.h>

#include "../per/walk.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

// `Names` holds the identifiers in kAlternatives, the kRoots root alternatives first.
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

#pragma pack(pop)

}  // namespace kelvra::h225

namespace kelvra::h235 {
using h225::NullChoice;
}  // namespace kelvra::h235
