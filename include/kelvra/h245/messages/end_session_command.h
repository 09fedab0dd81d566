// The end of a session.
#pragma once

#include "../common/non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct EndSessionCommand {
  KELVRA_NULL_CHOICE(NullChoice, GstnOptions, 5, "telephonyMode", "v8bis", "v34DSVD", "v34DuplexFAX", "v34H324");
  KELVRA_NULL_CHOICE(NullChoice, IsdnOptions, 3, "telephonyMode", "v140", "terminalOnHold");

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    GstnOptions gstnOptions;
    IsdnOptions isdnOptions;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_NULL(disconnect);
    KELVRA_ALTERNATIVE(gstnOptions, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(isdnOptions, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
