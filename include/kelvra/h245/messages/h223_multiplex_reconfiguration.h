// Changes of an H.223 multiplex.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct H223MultiplexReconfiguration {
  KELVRA_NULL_CHOICE(NullChoice, H223ModeChange, 4, "toLevel0", "toLevel1", "toLevel2", "toLevel2withOptionalHeader");
  KELVRA_NULL_CHOICE(NullChoice, H223AnnexADoubleFlag, 2, "start", "stop");

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    H223ModeChange h223ModeChange;
    H223AnnexADoubleFlag h223AnnexADoubleFlag;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(h223ModeChange, DefinedType());
    KELVRA_ALTERNATIVE(h223AnnexADoubleFlag, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
