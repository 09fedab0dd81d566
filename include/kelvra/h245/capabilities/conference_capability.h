// Conference control and user input.
#pragma once

#include "../common/non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct ConferenceCapability {
  uint32_t hasNonStandardData;
  uint8_t nonStandardDataCount;
  NonStandardParameter* nonStandardData;
  uint32_t chairControlCapability;
  uint32_t isExtended;
  uint32_t hasVideoIndicateMixingCapability;
  uint32_t videoIndicateMixingCapability;
  uint32_t hasMultipointVisualizationCapability;
  uint32_t multipointVisualizationCapability;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL_LIST(hasNonStandardData, nonStandardData, SequenceOf(DefinedType()));
    KELVRA_MEMBER(chairControlCapability, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasVideoIndicateMixingCapability, videoIndicateMixingCapability, Boolean());
    KELVRA_ADDITION(hasMultipointVisualizationCapability, multipointVisualizationCapability, Boolean());
  KELVRA_END
};

struct UserInputCapability {
  struct NonStandardList {
    uint8_t count;
    NonStandardParameter* elements;
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardList nonStandard;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, SequenceOf(1, 16, DefinedType()));
    KELVRA_NULL(basicString);
    KELVRA_NULL(iA5String);
    KELVRA_NULL(generalString);
    KELVRA_NULL(dtmf);
    KELVRA_NULL(hookflash);
    KELVRA_EXTENSION(isExtension);
    KELVRA_NULL(extendedAlphanumeric);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
