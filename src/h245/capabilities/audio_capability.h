// Audio capabilities.
#pragma once

#include <stdint.h>

#include "../common/generic_capability.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("audioLayer1", m.audioLayer1);
    v.Boolean("audioLayer2", m.audioLayer2);
    v.Boolean("audioLayer3", m.audioLayer3);
    v.Boolean("audioSampling32k", m.audioSampling32k);
    v.Boolean("audioSampling44k1", m.audioSampling44k1);
    v.Boolean("audioSampling48k", m.audioSampling48k);
    v.Boolean("singleChannel", m.singleChannel);
    v.Boolean("twoChannels", m.twoChannels);
    v.Number("bitRate", m.bitRate);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("audioLayer1", m.audioLayer1);
    v.Boolean("audioLayer2", m.audioLayer2);
    v.Boolean("audioLayer3", m.audioLayer3);
    v.Boolean("audioSampling16k", m.audioSampling16k);
    v.Boolean("audioSampling22k05", m.audioSampling22k05);
    v.Boolean("audioSampling24k", m.audioSampling24k);
    v.Boolean("audioSampling32k", m.audioSampling32k);
    v.Boolean("audioSampling44k1", m.audioSampling44k1);
    v.Boolean("audioSampling48k", m.audioSampling48k);
    v.Boolean("singleChannel", m.singleChannel);
    v.Boolean("twoChannels", m.twoChannels);
    v.Boolean("threeChannels2-1", m.threeChannels21);
    v.Boolean("threeChannels3-0", m.threeChannels30);
    v.Boolean("fourChannels2-0-2-0", m.fourChannels2020);
    v.Boolean("fourChannels2-2", m.fourChannels22);
    v.Boolean("fourChannels3-1", m.fourChannels31);
    v.Boolean("fiveChannels3-0-2-0", m.fiveChannels3020);
    v.Boolean("fiveChannels3-2", m.fiveChannels32);
    v.Boolean("lowFrequencyEnhancement", m.lowFrequencyEnhancement);
    v.Boolean("multilingual", m.multilingual);
    v.Number("bitRate", m.bitRate);
  }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("highRateMode0", m.highRateMode0);
      v.Number("highRateMode1", m.highRateMode1);
      v.Number("lowRateMode0", m.lowRateMode0);
      v.Number("lowRateMode1", m.lowRateMode1);
      v.Number("sidMode0", m.sidMode0);
      v.Number("sidMode1", m.sidMode1);
    }
  };

  uint16_t maxAlSduAudioFrames;
  uint32_t silenceSuppression;
  uint32_t hasG723AnnexCAudioMode;
  G723AnnexCAudioMode g723AnnexCAudioMode;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("maxAl-sduAudioFrames", m.maxAlSduAudioFrames);
    v.Boolean("silenceSuppression", m.silenceSuppression);
    if (m.hasG723AnnexCAudioMode) v.Record("g723AnnexCAudioMode", m.g723AnnexCAudioMode);
  }
};

struct GSMAudioCapability {
  uint16_t audioUnitSize;
  uint32_t comfortNoise;
  uint32_t scrambled;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("audioUnitSize", m.audioUnitSize);
    v.Boolean("comfortNoise", m.comfortNoise);
    v.Boolean("scrambled", m.scrambled);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasAudioUnit) v.Number("audioUnit", m.audioUnit);
    v.Boolean("annexA", m.annexA);
    v.Boolean("annexB", m.annexB);
    v.Boolean("annexD", m.annexD);
    v.Boolean("annexE", m.annexE);
    v.Boolean("annexF", m.annexF);
    v.Boolean("annexG", m.annexG);
    v.Boolean("annexH", m.annexH);
  }
};

struct AudioTelephonyEventCapability {
  uint8_t dynamicRTPPayloadType;
  OctetStringValue audioTelephoneEvent;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("dynamicRTPPayloadType", m.dynamicRTPPayloadType);
    WalkOctets(v, "audioTelephoneEvent", m.audioTelephoneEvent, OctetNotation::kCharacters);
  }
};

struct AudioToneCapability {
  uint8_t dynamicRTPPayloadType;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("dynamicRTPPayloadType", m.dynamicRTPPayloadType);
  }
};

struct AudioCapability {
  struct G7231 {
    uint16_t maxAlSduAudioFrames;
    uint32_t silenceSuppression;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("maxAl-sduAudioFrames", m.maxAlSduAudioFrames);
      v.Boolean("silenceSuppression", m.silenceSuppression);
    }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Number("g729wAnnexB", m.g729wAnnexB);
        case 1: return v.Number("g729AnnexAwAnnexB", m.g729AnnexAwAnnexB);
        case 2: return v.Record("g7231AnnexCCapability", m.g7231AnnexCCapability);
        case 3: return v.Record("gsmFullRate", m.gsmFullRate);
        case 4: return v.Record("gsmHalfRate", m.gsmHalfRate);
        case 5: return v.Record("gsmEnhancedFullRate", m.gsmEnhancedFullRate);
        case 6: return v.Record("genericAudioCapability", m.genericAudioCapability);
        case 7: return v.Record("g729Extensions", m.g729Extensions);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Number("g711Alaw64k", m.g711Alaw64k);
      case 2: return v.Number("g711Alaw56k", m.g711Alaw56k);
      case 3: return v.Number("g711Ulaw64k", m.g711Ulaw64k);
      case 4: return v.Number("g711Ulaw56k", m.g711Ulaw56k);
      case 5: return v.Number("g722-64k", m.g72264k);
      case 6: return v.Number("g722-56k", m.g72256k);
      case 7: return v.Number("g722-48k", m.g72248k);
      case 8: return v.Record("g7231", m.g7231);
      case 9: return v.Number("g728", m.g728);
      case 10: return v.Number("g729", m.g729);
      case 11: return v.Number("g729AnnexA", m.g729AnnexA);
      case 12: return v.Record("is11172AudioCapability", m.is11172AudioCapability);
      case 13: return v.Record("is13818AudioCapability", m.is13818AudioCapability);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
