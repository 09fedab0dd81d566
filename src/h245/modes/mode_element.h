// One stream of a requested mode: its type and the parameters of the multiplex it travels in.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"
#include "../channels/multiplex_parameters.h"
#include "mode_element_type.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

using H223ModeParameters = H223LogicalChannelParameters;

struct V76ModeParametersNames {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"suspendResumewAddress", "suspendResumewoAddress"};
};
using V76ModeParameters = NullChoice<V76ModeParametersNames>;

struct RedundancyEncodingMode {
  struct SecondaryEncoding {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
      AudioMode audioData;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Record("nonStandard", m.nonStandard);
        case 1: return v.Record("audioData", m.audioData);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  RedundancyEncodingMethod redundancyEncodingMethod;
  uint32_t hasSecondaryEncoding;
  SecondaryEncoding secondaryEncoding;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("redundancyEncodingMethod", m.redundancyEncodingMethod);
    if (m.hasSecondaryEncoding) v.Record("secondaryEncoding", m.secondaryEncoding);
  }
};

struct H2250ModeParameters {
  uint32_t hasRedundancyEncodingMode;
  RedundancyEncodingMode redundancyEncodingMode;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasRedundancyEncodingMode) v.Record("redundancyEncodingMode", m.redundancyEncodingMode);
  }
};

struct MultiplexedStreamModeParameters {
  uint16_t logicalChannelNumber;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("logicalChannelNumber", m.logicalChannelNumber);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("type", m.type);
    if (m.hasH223ModeParameters) v.Record("h223ModeParameters", m.h223ModeParameters);
    if (m.hasV76ModeParameters) v.Record("v76ModeParameters", m.v76ModeParameters);
    if (m.hasH2250ModeParameters) v.Record("h2250ModeParameters", m.h2250ModeParameters);
    if (m.hasGenericModeParameters) v.Record("genericModeParameters", m.genericModeParameters);
    if (m.hasMultiplexedStreamModeParameters) {
      v.Record("multiplexedStreamModeParameters", m.multiplexedStreamModeParameters);
    }
    if (m.hasLogicalChannelNumber) v.Number("logicalChannelNumber", m.logicalChannelNumber);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
