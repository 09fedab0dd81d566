// Patterns that stand for many alias addresses.
#pragma once

#include <stdint.h>

#include "addresses.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct AddressPattern {
  struct Range {
    PartyNumber startOfRange;
    PartyNumber endOfRange;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("startOfRange", m.startOfRange);
      v.Record("endOfRange", m.endOfRange);
    }
  };

  uint8_t choiceTag;
  union {
    AliasAddress wildcard;
    Range range;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("wildcard", m.wildcard);
      case 1: return v.Record("range", m.range);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
