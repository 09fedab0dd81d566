// Non-standard parameters of H.225.0.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct H221NonStandard {
  uint8_t t35CountryCode;
  uint8_t t35Extension;
  uint16_t manufacturerCode;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(t35CountryCode, Integer(0, 255));
    KELVRA_MEMBER(t35Extension, Integer(0, 255));
    KELVRA_MEMBER(manufacturerCode, Integer(0, 65535));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct NonStandardIdentifier {
  uint8_t choiceTag;
  union {
    ObjectIdentifierValue object;
    H221NonStandard h221NonStandard;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(object, ObjectIdentifier());
    KELVRA_ALTERNATIVE(h221NonStandard, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct NonStandardParameter {
  NonStandardIdentifier nonStandardIdentifier;
  OctetStringValue data;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(nonStandardIdentifier, DefinedType());
    KELVRA_MEMBER(data, OctetString());
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
