// Patterns that stand for many alias addresses.
#pragma once

#include "addresses.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct AddressPattern {
  struct Range {
    PartyNumber startOfRange;
    PartyNumber endOfRange;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(startOfRange, DefinedType());
      KELVRA_MEMBER(endOfRange, DefinedType());
    KELVRA_END
  };

  uint8_t choiceTag;
  union {
    AliasAddress wildcard;
    Range range;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(wildcard, DefinedType());
    KELVRA_ALTERNATIVE(range, InlineType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
