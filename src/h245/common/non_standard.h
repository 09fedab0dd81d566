// Non-standard parameters of H.245.
#pragma once

#include <stdint.h>

#include "../../record/walk.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

// Neither this CHOICE nor h221NonStandard has an extension marker.
struct NonStandardIdentifier {
  struct H221NonStandard {
    uint8_t t35CountryCode;
    uint8_t t35Extension;
    uint16_t manufacturerCode;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("t35CountryCode", m.t35CountryCode);
      v.Number("t35Extension", m.t35Extension);
      v.Number("manufacturerCode", m.manufacturerCode);
    }
  };

  uint8_t choiceTag;
  union {
    ObjectIdentifierValue object;
    H221NonStandard h221NonStandard;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.choiceTag == 0) return v.ObjectIdentifier("object", m.object);
    v.Record("h221NonStandard", m.h221NonStandard);
  }
};

// The one record whose octets stand before their length.
struct NonStandardParameter {
  NonStandardIdentifier nonStandardIdentifier;
  uint8_t* data;
  uint32_t dataLength;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("nonStandardIdentifier", m.nonStandardIdentifier);
    v.Octets("data", KELVRA_SLOT(m.data), m.dataLength, OctetNotation::kOctets);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
