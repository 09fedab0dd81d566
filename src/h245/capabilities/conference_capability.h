// Conference control and user input.
#pragma once

#include <stdint.h>

#include "../common/non_standard.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.List("nonStandardData", KELVRA_LIST(m.nonStandardData));
    v.Boolean("chairControlCapability", m.chairControlCapability);
    if (m.hasVideoIndicateMixingCapability) v.Boolean("videoIndicateMixingCapability", m.videoIndicateMixingCapability);
    if (m.hasMultipointVisualizationCapability)
      v.Boolean("multipointVisualizationCapability", m.multipointVisualizationCapability);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Null("extendedAlphanumeric");
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.List("nonStandard", ListOf(m.nonStandard));
      case 1: return v.Null("basicString");
      case 2: return v.Null("iA5String");
      case 3: return v.Null("generalString");
      case 4: return v.Null("dtmf");
      case 5: return v.Null("hookflash");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
