// The record of every extensible H.245 CHOICE whose alternatives are all NULL.
#pragma once

#include <stdint.h>

#include "../per/walk.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

// `Names` holds the identifiers in kAlternatives, the kRoots root alternatives first.
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

#pragma pack(pop)

}  // namespace kelvra::h245
