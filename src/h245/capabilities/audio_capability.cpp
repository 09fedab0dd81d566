#include "h245/capabilities/audio_capability_decode.h"
#include "h245/common/generic_capability_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeG7231(AudioCapability::G7231& m, PerReader& r) {
  m.maxAlSduAudioFrames = PerReadNumber<uint16_t>(r, 1, 256);
  m.silenceSuppression = PerReadBit(r);
}

void DecodeIS11172AudioCapability(IS11172AudioCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 9);
  m.isExtended = flags.Next();
  m.audioLayer1 = flags.Next();
  m.audioLayer2 = flags.Next();
  m.audioLayer3 = flags.Next();
  m.audioSampling32k = flags.Next();
  m.audioSampling44k1 = flags.Next();
  m.audioSampling48k = flags.Next();
  m.singleChannel = flags.Next();
  m.twoChannels = flags.Next();
  m.bitRate = PerReadNumber<uint16_t>(r, 1, 448);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeIS13818AudioCapability(IS13818AudioCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 21);
  m.isExtended = flags.Next();
  m.audioLayer1 = flags.Next();
  m.audioLayer2 = flags.Next();
  m.audioLayer3 = flags.Next();
  m.audioSampling16k = flags.Next();
  m.audioSampling22k05 = flags.Next();
  m.audioSampling24k = flags.Next();
  m.audioSampling32k = flags.Next();
  m.audioSampling44k1 = flags.Next();
  m.audioSampling48k = flags.Next();
  m.singleChannel = flags.Next();
  m.twoChannels = flags.Next();
  m.threeChannels21 = flags.Next();
  m.threeChannels30 = flags.Next();
  m.fourChannels2020 = flags.Next();
  m.fourChannels22 = flags.Next();
  m.fourChannels31 = flags.Next();
  m.fiveChannels3020 = flags.Next();
  m.fiveChannels32 = flags.Next();
  m.lowFrequencyEnhancement = flags.Next();
  m.multilingual = flags.Next();
  m.bitRate = PerReadNumber<uint16_t>(r, 1, 1130);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeG7231AnnexCCapability(G7231AnnexCCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasG723AnnexCAudioMode = flags.Next();
  m.maxAlSduAudioFrames = PerReadNumber<uint16_t>(r, 1, 256);
  m.silenceSuppression = PerReadBit(r);
  if (m.hasG723AnnexCAudioMode) DecodeG723AnnexCAudioMode(m.g723AnnexCAudioMode, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeG723AnnexCAudioMode(G7231AnnexCCapability::G723AnnexCAudioMode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.highRateMode0 = PerReadNumber<uint8_t>(r, 27, 78);
  m.highRateMode1 = PerReadNumber<uint8_t>(r, 27, 78);
  m.lowRateMode0 = PerReadNumber<uint8_t>(r, 23, 66);
  m.lowRateMode1 = PerReadNumber<uint8_t>(r, 23, 66);
  m.sidMode0 = PerReadNumber<uint8_t>(r, 6, 17);
  m.sidMode1 = PerReadNumber<uint8_t>(r, 6, 17);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeGSMAudioCapability(GSMAudioCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.audioUnitSize = PerReadNumber<uint16_t>(r, 1, 256);
  PerFlags flags = PerReadFlags(r, 2);
  m.comfortNoise = flags.Next();
  m.scrambled = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeG729Extensions(G729Extensions& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasAudioUnit = flags.Next();
  if (m.hasAudioUnit) m.audioUnit = PerReadNumber<uint16_t>(r, 1, 256);
  flags = PerReadFlags(r, 7);
  m.annexA = flags.Next();
  m.annexB = flags.Next();
  m.annexD = flags.Next();
  m.annexE = flags.Next();
  m.annexF = flags.Next();
  m.annexG = flags.Next();
  m.annexH = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeAudioTelephonyEventCapability(AudioTelephonyEventCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.dynamicRTPPayloadType = PerReadNumber<uint8_t>(r, 96, 127);
  PerReadAnnouncedOctetString(m.audioTelephoneEvent, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeAudioToneCapability(AudioToneCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.dynamicRTPPayloadType = PerReadNumber<uint8_t>(r, 96, 127);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeAudioCapability(AudioCapability& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 14);
  if (m.isExtension) {
    switch (index) {
      case 0: m.g729wAnnexB = PerReadOpenNumber<uint16_t>(r, 1, 256); return;
      case 1: m.g729AnnexAwAnnexB = PerReadOpenNumber<uint16_t>(r, 1, 256); return;
      case 2: return DecodeOpen(m.g7231AnnexCCapability, r, DecodeG7231AnnexCCapability);
      case 3: return DecodeOpen(m.gsmFullRate, r, DecodeGSMAudioCapability);
      case 4: return DecodeOpen(m.gsmHalfRate, r, DecodeGSMAudioCapability);
      case 5: return DecodeOpen(m.gsmEnhancedFullRate, r, DecodeGSMAudioCapability);
      case 6: return DecodeOpen(m.genericAudioCapability, r, DecodeGenericCapability);
      case 7: return DecodeOpen(m.g729Extensions, r, DecodeG729Extensions);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: m.g711Alaw64k = PerReadNumber<uint16_t>(r, 1, 256); return;
    case 2: m.g711Alaw56k = PerReadNumber<uint16_t>(r, 1, 256); return;
    case 3: m.g711Ulaw64k = PerReadNumber<uint16_t>(r, 1, 256); return;
    case 4: m.g711Ulaw56k = PerReadNumber<uint16_t>(r, 1, 256); return;
    case 5: m.g72264k = PerReadNumber<uint16_t>(r, 1, 256); return;
    case 6: m.g72256k = PerReadNumber<uint16_t>(r, 1, 256); return;
    case 7: m.g72248k = PerReadNumber<uint16_t>(r, 1, 256); return;
    case 8: return DecodeG7231(m.g7231, r);
    case 9: m.g728 = PerReadNumber<uint16_t>(r, 1, 256); return;
    case 10: m.g729 = PerReadNumber<uint16_t>(r, 1, 256); return;
    case 11: m.g729AnnexA = PerReadNumber<uint16_t>(r, 1, 256); return;
    case 12: return DecodeIS11172AudioCapability(m.is11172AudioCapability, r);
    case 13: return DecodeIS13818AudioCapability(m.is13818AudioCapability, r);
    default: return;
  }
}

}  // namespace kelvra::h245
