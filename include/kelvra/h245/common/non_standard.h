// Non-standard parameters of H.245.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

// Neither this CHOICE nor h221NonStandard has an extension marker.
struct NonStandardIdentifier {
  struct H221NonStandard {
    uint8_t t35CountryCode;
    uint8_t t35Extension;
    uint16_t manufacturerCode;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(t35CountryCode, Integer(0, 255));
      KELVRA_MEMBER(t35Extension, Integer(0, 255));
      KELVRA_MEMBER(manufacturerCode, Integer(0, 65535));
    KELVRA_END
  };

  uint8_t choiceTag;
  union {
    ObjectIdentifierValue object;
    H221NonStandard h221NonStandard;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(object, ObjectIdentifier());
    KELVRA_ALTERNATIVE(h221NonStandard, InlineType());
  KELVRA_END
};

// The only record in which the pointer to the octets comes before their length.
struct NonStandardParameter {
  NonStandardIdentifier nonStandardIdentifier;
  uint8_t* data;
  uint32_t dataLength;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(nonStandardIdentifier, DefinedType());
    KELVRA_MEMBER(data, OctetStringOf(KELVRA_PLACE(dataLength)));
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
