// One stream of a requested mode: its type and its multiplex parameters.
#pragma once

#include "../channels/multiplex_parameters.h"
#include "mode_element_type.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

using H223ModeParameters = H223LogicalChannelParameters;

KELVRA_NULL_CHOICE(NullChoice, V76ModeParameters, 2, "suspendResumewAddress", "suspendResumewoAddress");

struct RedundancyEncodingMode {
  struct SecondaryEncoding {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
      AudioMode audioData;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(nonStandard, DefinedType());
      KELVRA_ALTERNATIVE(audioData, DefinedType());
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  RedundancyEncodingMethod redundancyEncodingMethod;
  uint32_t hasSecondaryEncoding;
  SecondaryEncoding secondaryEncoding;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(redundancyEncodingMethod, DefinedType());
    KELVRA_OPTIONAL(hasSecondaryEncoding, secondaryEncoding, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H2250ModeParameters {
  uint32_t hasRedundancyEncodingMode;
  RedundancyEncodingMode redundancyEncodingMode;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasRedundancyEncodingMode, redundancyEncodingMode, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MultiplexedStreamModeParameters {
  uint16_t logicalChannelNumber;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(logicalChannelNumber, Integer(1, 65535));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct ModeElement {
  ModeElementType type;
  uint32_t hasH223ModeParameters;
  H223ModeParameters h223ModeParameters;
  uint32_t isExtended;
  uint32_t hasV76ModeParameters;
  V76ModeParameters v76ModeParameters;
  uint32_t hasH2250ModeParameters;
  H2250ModeParameters h2250ModeParameters;
  uint32_t hasGenericModeParameters;
  GenericCapability genericModeParameters;
  uint32_t hasMultiplexedStreamModeParameters;
  MultiplexedStreamModeParameters multiplexedStreamModeParameters;
  uint32_t hasLogicalChannelNumber;
  uint16_t logicalChannelNumber;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(type, DefinedType());
    KELVRA_OPTIONAL(hasH223ModeParameters, h223ModeParameters, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasV76ModeParameters, v76ModeParameters, DefinedType());
    KELVRA_ADDITION(hasH2250ModeParameters, h2250ModeParameters, DefinedType());
    KELVRA_ADDITION(hasGenericModeParameters, genericModeParameters, DefinedType());
    KELVRA_ADDITION(hasMultiplexedStreamModeParameters, multiplexedStreamModeParameters, DefinedType());
    KELVRA_ADDITION(hasLogicalChannelNumber, logicalChannelNumber, Integer(1, 65535));
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
