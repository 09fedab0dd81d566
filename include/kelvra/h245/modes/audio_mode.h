// Requested audio modes.
#pragma once

#include "../capabilities/audio_capability.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

KELVRA_NULL_CHOICE(UnextensibleNullChoice, AudioLayer, 3, "audioLayer1", "audioLayer2", "audioLayer3");

struct IS11172AudioMode {
  KELVRA_NULL_CHOICE(UnextensibleNullChoice, AudioSampling, 3, "audioSampling32k", "audioSampling44k1",
                     "audioSampling48k");
  KELVRA_NULL_CHOICE(UnextensibleNullChoice, MultichannelType, 3, "singleChannel", "twoChannelStereo",
                     "twoChannelDual");

  AudioLayer audioLayer;
  AudioSampling audioSampling;
  MultichannelType multichannelType;
  uint16_t bitRate;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(audioLayer, DefinedType());
    KELVRA_MEMBER(audioSampling, DefinedType());
    KELVRA_MEMBER(multichannelType, DefinedType());
    KELVRA_MEMBER(bitRate, Integer(1, 448));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct IS13818AudioMode {
  KELVRA_NULL_CHOICE(UnextensibleNullChoice, AudioSampling, 6, "audioSampling16k", "audioSampling22k05",
                     "audioSampling24k", "audioSampling32k", "audioSampling44k1", "audioSampling48k");
  KELVRA_NULL_CHOICE(UnextensibleNullChoice, MultichannelType, 10, "singleChannel", "twoChannelStereo",
                     "twoChannelDual", "threeChannels2-1", "threeChannels3-0", "fourChannels2-0-2-0", "fourChannels2-2",
                     "fourChannels3-1", "fiveChannels3-0-2-0", "fiveChannels3-2");

  AudioLayer audioLayer;
  AudioSampling audioSampling;
  MultichannelType multichannelType;
  uint32_t lowFrequencyEnhancement;
  uint32_t multilingual;
  uint16_t bitRate;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(audioLayer, DefinedType());
    KELVRA_MEMBER(audioSampling, DefinedType());
    KELVRA_MEMBER(multichannelType, DefinedType());
    KELVRA_MEMBER(lowFrequencyEnhancement, Boolean());
    KELVRA_MEMBER(multilingual, Boolean());
    KELVRA_MEMBER(bitRate, Integer(1, 1130));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct G7231AnnexCMode {
  uint16_t maxAlSduAudioFrames;
  uint32_t silenceSuppression;
  G7231AnnexCCapability::G723AnnexCAudioMode g723AnnexCAudioMode;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(maxAlSduAudioFrames, Named("maxAl-sduAudioFrames", Integer(1, 256)));
    KELVRA_MEMBER(silenceSuppression, Boolean());
    KELVRA_MEMBER(g723AnnexCAudioMode, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct AudioMode {
  KELVRA_NULL_CHOICE(UnextensibleNullChoice, G7231, 4, "noSilenceSuppressionLowRate", "noSilenceSuppressionHighRate",
                     "silenceSuppressionLowRate", "silenceSuppressionHighRate");

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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_NULL(g711Alaw64k);
    KELVRA_NULL(g711Alaw56k);
    KELVRA_NULL(g711Ulaw64k);
    KELVRA_NULL(g711Ulaw56k);
    KELVRA_NULL(g722-64k);
    KELVRA_NULL(g722-56k);
    KELVRA_NULL(g722-48k);
    KELVRA_NULL(g728);
    KELVRA_NULL(g729);
    KELVRA_NULL(g729AnnexA);
    KELVRA_ALTERNATIVE(g7231, DefinedType());
    KELVRA_ALTERNATIVE(is11172AudioMode, DefinedType());
    KELVRA_ALTERNATIVE(is13818AudioMode, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(g729wAnnexB, Integer(1, 256));
    KELVRA_ALTERNATIVE(g729AnnexAwAnnexB, Integer(1, 256));
    KELVRA_ALTERNATIVE(g7231AnnexCMode, DefinedType());
    KELVRA_ALTERNATIVE(gsmFullRate, DefinedType());
    KELVRA_ALTERNATIVE(gsmHalfRate, DefinedType());
    KELVRA_ALTERNATIVE(gsmEnhancedFullRate, DefinedType());
    KELVRA_ALTERNATIVE(genericAudioMode, DefinedType());
    KELVRA_ALTERNATIVE(g729Extensions, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
