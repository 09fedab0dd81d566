// Non-standard parameters of H.225.0.
#pragma once

#include <stdint.h>

#include "../../record/walk.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct H221NonStandard {
  uint8_t t35CountryCode;
  uint8_t t35Extension;
  uint16_t manufacturerCode;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("t35CountryCode", m.t35CountryCode);
    v.Number("t35Extension", m.t35Extension);
    v.Number("manufacturerCode", m.manufacturerCode);
  }
};

struct NonStandardIdentifier {
  uint8_t choiceTag;
  union {
    ObjectIdentifierValue object;
    H221NonStandard h221NonStandard;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.ObjectIdentifier("object", m.object);
      case 1: return v.Record("h221NonStandard", m.h221NonStandard);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct NonStandardParameter {
  NonStandardIdentifier nonStandardIdentifier;
  OctetStringValue data;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("nonStandardIdentifier", m.nonStandardIdentifier);
    WalkOctets(v, "data", m.data);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
