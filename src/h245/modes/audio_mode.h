// Audio modes that a peer asks for.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"
#include "../capabilities/audio_capability.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct AudioLayerNames {
  static constexpr uint32_t kRoots = 3;
  static constexpr const char* kAlternatives[] = {"audioLayer1", "audioLayer2", "audioLayer3"};
};
using AudioLayer = RootNullChoice<AudioLayerNames>;

struct IS11172AudioMode {
  struct AudioSamplingNames {
    static constexpr uint32_t kRoots = 3;
    static constexpr const char* kAlternatives[] = {"audioSampling32k", "audioSampling44k1", "audioSampling48k"};
  };
  using AudioSampling = RootNullChoice<AudioSamplingNames>;

  struct MultichannelTypeNames {
    static constexpr uint32_t kRoots = 3;
    static constexpr const char* kAlternatives[] = {"singleChannel", "twoChannelStereo", "twoChannelDual"};
  };
  using MultichannelType = RootNullChoice<MultichannelTypeNames>;

  AudioLayer audioLayer;
  AudioSampling audioSampling;
  MultichannelType multichannelType;
  uint16_t bitRate;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("audioLayer", m.audioLayer);
    v.Record("audioSampling", m.audioSampling);
    v.Record("multichannelType", m.multichannelType);
    v.Number("bitRate", m.bitRate);
  }
};

struct IS13818AudioMode {
  struct AudioSamplingNames {
    static constexpr uint32_t kRoots = 6;
    static constexpr const char* kAlternatives[] = {"audioSampling16k", "audioSampling22k05", "audioSampling24k",
                                                    "audioSampling32k", "audioSampling44k1",  "audioSampling48k"};
  };
  using AudioSampling = RootNullChoice<AudioSamplingNames>;

  struct MultichannelTypeNames {
    static constexpr uint32_t kRoots = 10;
    static constexpr const char* kAlternatives[] = {
        "singleChannel",       "twoChannelStereo", "twoChannelDual",  "threeChannels2-1",    "threeChannels3-0",
        "fourChannels2-0-2-0", "fourChannels2-2",  "fourChannels3-1", "fiveChannels3-0-2-0", "fiveChannels3-2"};
  };
  using MultichannelType = RootNullChoice<MultichannelTypeNames>;

  AudioLayer audioLayer;
  AudioSampling audioSampling;
  MultichannelType multichannelType;
  uint32_t lowFrequencyEnhancement;
  uint32_t multilingual;
  uint16_t bitRate;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("audioLayer", m.audioLayer);
    v.Record("audioSampling", m.audioSampling);
    v.Record("multichannelType", m.multichannelType);
    v.Boolean("lowFrequencyEnhancement", m.lowFrequencyEnhancement);
    v.Boolean("multilingual", m.multilingual);
    v.Number("bitRate", m.bitRate);
  }
};

struct G7231AnnexCMode {
  uint16_t maxAlSduAudioFrames;
  uint32_t silenceSuppression;
  G7231AnnexCCapability::G723AnnexCAudioMode g723AnnexCAudioMode;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("maxAl-sduAudioFrames", m.maxAlSduAudioFrames);
    v.Boolean("silenceSuppression", m.silenceSuppression);
    v.Record("g723AnnexCAudioMode", m.g723AnnexCAudioMode);
  }
};

struct AudioMode {
  struct G7231Names {
    static constexpr uint32_t kRoots = 4;
    static constexpr const char* kAlternatives[] = {"noSilenceSuppressionLowRate", "noSilenceSuppressionHighRate",
                                                    "silenceSuppressionLowRate", "silenceSuppressionHighRate"};
  };
  using G7231 = RootNullChoice<G7231Names>;

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    G7231 g7231;
    IS11172AudioMode is11172AudioMode;
    IS13818AudioMode is13818AudioMode;
    uint16_t g729wAnnexB;
    uint16_t g729AnnexAwAnnexB;
    G7231AnnexCMode g7231AnnexCMode;
    GSMAudioCapability gsmFullRate;
    GSMAudioCapability gsmHalfRate;
    GSMAudioCapability gsmEnhancedFullRate;
    GenericCapability genericAudioMode;
    G729Extensions g729Extensions;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Number("g729wAnnexB", m.g729wAnnexB);
        case 1: return v.Number("g729AnnexAwAnnexB", m.g729AnnexAwAnnexB);
        case 2: return v.Record("g7231AnnexCMode", m.g7231AnnexCMode);
        case 3: return v.Record("gsmFullRate", m.gsmFullRate);
        case 4: return v.Record("gsmHalfRate", m.gsmHalfRate);
        case 5: return v.Record("gsmEnhancedFullRate", m.gsmEnhancedFullRate);
        case 6: return v.Record("genericAudioMode", m.genericAudioMode);
        case 7: return v.Record("g729Extensions", m.g729Extensions);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Null("g711Alaw64k");
      case 2: return v.Null("g711Alaw56k");
      case 3: return v.Null("g711Ulaw64k");
      case 4: return v.Null("g711Ulaw56k");
      case 5: return v.Null("g722-64k");
      case 6: return v.Null("g722-56k");
      case 7: return v.Null("g722-48k");
      case 8: return v.Null("g728");
      case 9: return v.Null("g729");
      case 10: return v.Null("g729AnnexA");
      case 11: return v.Record("g7231", m.g7231);
      case 12: return v.Record("is11172AudioMode", m.is11172AudioMode);
      case 13: return v.Record("is13818AudioMode", m.is13818AudioMode);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
