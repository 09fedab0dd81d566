// Audio capabilities.
#pragma once

#include "../common/generic_capability.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct IS11172AudioCapability {
  uint32_t audioLayer1;
  uint32_t audioLayer2;
  uint32_t audioLayer3;
  uint32_t audioSampling32k;
  uint32_t audioSampling44k1;
  uint32_t audioSampling48k;
  uint32_t singleChannel;
  uint32_t twoChannels;
  uint16_t bitRate;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(audioLayer1, Boolean());
    KELVRA_MEMBER(audioLayer2, Boolean());
    KELVRA_MEMBER(audioLayer3, Boolean());
    KELVRA_MEMBER(audioSampling32k, Boolean());
    KELVRA_MEMBER(audioSampling44k1, Boolean());
    KELVRA_MEMBER(audioSampling48k, Boolean());
    KELVRA_MEMBER(singleChannel, Boolean());
    KELVRA_MEMBER(twoChannels, Boolean());
    KELVRA_MEMBER(bitRate, Integer(1, 448));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct IS13818AudioCapability {
  uint32_t audioLayer1;
  uint32_t audioLayer2;
  uint32_t audioLayer3;
  uint32_t audioSampling16k;
  uint32_t audioSampling22k05;
  uint32_t audioSampling24k;
  uint32_t audioSampling32k;
  uint32_t audioSampling44k1;
  uint32_t audioSampling48k;
  uint32_t singleChannel;
  uint32_t twoChannels;
  uint32_t threeChannels21;
  uint32_t threeChannels30;
  uint32_t fourChannels2020;
  uint32_t fourChannels22;
  uint32_t fourChannels31;
  uint32_t fiveChannels3020;
  uint32_t fiveChannels32;
  uint32_t lowFrequencyEnhancement;
  uint32_t multilingual;
  uint16_t bitRate;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(audioLayer1, Boolean());
    KELVRA_MEMBER(audioLayer2, Boolean());
    KELVRA_MEMBER(audioLayer3, Boolean());
    KELVRA_MEMBER(audioSampling16k, Boolean());
    KELVRA_MEMBER(audioSampling22k05, Boolean());
    KELVRA_MEMBER(audioSampling24k, Boolean());
    KELVRA_MEMBER(audioSampling32k, Boolean());
    KELVRA_MEMBER(audioSampling44k1, Boolean());
    KELVRA_MEMBER(audioSampling48k, Boolean());
    KELVRA_MEMBER(singleChannel, Boolean());
    KELVRA_MEMBER(twoChannels, Boolean());
    KELVRA_MEMBER(threeChannels21, Named("threeChannels2-1", Boolean()));
    KELVRA_MEMBER(threeChannels30, Named("threeChannels3-0", Boolean()));
    KELVRA_MEMBER(fourChannels2020, Named("fourChannels2-0-2-0", Boolean()));
    KELVRA_MEMBER(fourChannels22, Named("fourChannels2-2", Boolean()));
    KELVRA_MEMBER(fourChannels31, Named("fourChannels3-1", Boolean()));
    KELVRA_MEMBER(fiveChannels3020, Named("fiveChannels3-0-2-0", Boolean()));
    KELVRA_MEMBER(fiveChannels32, Named("fiveChannels3-2", Boolean()));
    KELVRA_MEMBER(lowFrequencyEnhancement, Boolean());
    KELVRA_MEMBER(multilingual, Boolean());
    KELVRA_MEMBER(bitRate, Integer(1, 1130));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct G7231AnnexCCapability {
  struct G723AnnexCAudioMode {
    uint8_t highRateMode0;
    uint8_t highRateMode1;
    uint8_t lowRateMode0;
    uint8_t lowRateMode1;
    uint8_t sidMode0;
    uint8_t sidMode1;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(highRateMode0, Integer(27, 78));
      KELVRA_MEMBER(highRateMode1, Integer(27, 78));
      KELVRA_MEMBER(lowRateMode0, Integer(23, 66));
      KELVRA_MEMBER(lowRateMode1, Integer(23, 66));
      KELVRA_MEMBER(sidMode0, Integer(6, 17));
      KELVRA_MEMBER(sidMode1, Integer(6, 17));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint16_t maxAlSduAudioFrames;
  uint32_t silenceSuppression;
  uint32_t hasG723AnnexCAudioMode;
  G723AnnexCAudioMode g723AnnexCAudioMode;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(maxAlSduAudioFrames, Named("maxAl-sduAudioFrames", Integer(1, 256)));
    KELVRA_MEMBER(silenceSuppression, Boolean());
    KELVRA_OPTIONAL(hasG723AnnexCAudioMode, g723AnnexCAudioMode, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct GSMAudioCapability {
  uint16_t audioUnitSize;
  uint32_t comfortNoise;
  uint32_t scrambled;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(audioUnitSize, Integer(1, 256));
    KELVRA_MEMBER(comfortNoise, Boolean());
    KELVRA_MEMBER(scrambled, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct G729Extensions {
  uint32_t hasAudioUnit;
  uint16_t audioUnit;
  uint32_t annexA;
  uint32_t annexB;
  uint32_t annexD;
  uint32_t annexE;
  uint32_t annexF;
  uint32_t annexG;
  uint32_t annexH;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasAudioUnit, audioUnit, Integer(1, 256));
    KELVRA_MEMBER(annexA, Boolean());
    KELVRA_MEMBER(annexB, Boolean());
    KELVRA_MEMBER(annexD, Boolean());
    KELVRA_MEMBER(annexE, Boolean());
    KELVRA_MEMBER(annexF, Boolean());
    KELVRA_MEMBER(annexG, Boolean());
    KELVRA_MEMBER(annexH, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct AudioTelephonyEventCapability {
  uint8_t dynamicRTPPayloadType;
  OctetStringValue audioTelephoneEvent;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(dynamicRTPPayloadType, Integer(96, 127));
    KELVRA_MEMBER(audioTelephoneEvent, GeneralString());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct AudioToneCapability {
  uint8_t dynamicRTPPayloadType;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(dynamicRTPPayloadType, Integer(96, 127));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct AudioCapability {
  struct G7231 {
    uint16_t maxAlSduAudioFrames;
    uint32_t silenceSuppression;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(maxAlSduAudioFrames, Named("maxAl-sduAudioFrames", Integer(1, 256)));
      KELVRA_MEMBER(silenceSuppression, Boolean());
    KELVRA_END
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    uint16_t g711Alaw64k;
    uint16_t g711Alaw56k;
    uint16_t g711Ulaw64k;
    uint16_t g711Ulaw56k;
    uint16_t g72264k;
    uint16_t g72256k;
    uint16_t g72248k;
    G7231 g7231;
    uint16_t g728;
    uint16_t g729;
    uint16_t g729AnnexA;
    IS11172AudioCapability is11172AudioCapability;
    IS13818AudioCapability is13818AudioCapability;
    uint16_t g729wAnnexB;
    uint16_t g729AnnexAwAnnexB;
    G7231AnnexCCapability g7231AnnexCCapability;
    GSMAudioCapability gsmFullRate;
    GSMAudioCapability gsmHalfRate;
    GSMAudioCapability gsmEnhancedFullRate;
    GenericCapability genericAudioCapability;
    G729Extensions g729Extensions;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(g711Alaw64k, Integer(1, 256));
    KELVRA_ALTERNATIVE(g711Alaw56k, Integer(1, 256));
    KELVRA_ALTERNATIVE(g711Ulaw64k, Integer(1, 256));
    KELVRA_ALTERNATIVE(g711Ulaw56k, Integer(1, 256));
    KELVRA_ALTERNATIVE(g72264k, Named("g722-64k", Integer(1, 256)));
    KELVRA_ALTERNATIVE(g72256k, Named("g722-56k", Integer(1, 256)));
    KELVRA_ALTERNATIVE(g72248k, Named("g722-48k", Integer(1, 256)));
    KELVRA_ALTERNATIVE(g7231, InlineType());
    KELVRA_ALTERNATIVE(g728, Integer(1, 256));
    KELVRA_ALTERNATIVE(g729, Integer(1, 256));
    KELVRA_ALTERNATIVE(g729AnnexA, Integer(1, 256));
    KELVRA_ALTERNATIVE(is11172AudioCapability, DefinedType());
    KELVRA_ALTERNATIVE(is13818AudioCapability, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(g729wAnnexB, Integer(1, 256));
    KELVRA_ALTERNATIVE(g729AnnexAwAnnexB, Integer(1, 256));
    KELVRA_ALTERNATIVE(g7231AnnexCCapability, DefinedType());
    KELVRA_ALTERNATIVE(gsmFullRate, DefinedType());
    KELVRA_ALTERNATIVE(gsmHalfRate, DefinedType());
    KELVRA_ALTERNATIVE(gsmEnhancedFullRate, DefinedType());
    KELVRA_ALTERNATIVE(genericAudioCapability, DefinedType());
    KELVRA_ALTERNATIVE(g729Extensions, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
