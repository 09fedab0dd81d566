#include "h245/capabilities/audio_capability_decode.h"
#include "h245/common/generic_capability_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"
#include "h245/modes/audio_mode_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeIS11172AudioMode(IS11172AudioMode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.audioLayer, r);
  DecodeNullChoice(m.audioSampling, r);
  DecodeNullChoice(m.multichannelType, r);
  m.bitRate = PerReadNumber<uint16_t>(r, 1, 448);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeIS13818AudioMode(IS13818AudioMode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.audioLayer, r);
  DecodeNullChoice(m.audioSampling, r);
  DecodeNullChoice(m.multichannelType, r);
  PerFlags flags = PerReadFlags(r, 2);
  m.lowFrequencyEnhancement = flags.Next();
  m.multilingual = flags.Next();
  m.bitRate = PerReadNumber<uint16_t>(r, 1, 1130);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeG7231AnnexCMode(G7231AnnexCMode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.maxAlSduAudioFrames = PerReadNumber<uint16_t>(r, 1, 256);
  m.silenceSuppression = PerReadBit(r);
  DecodeG723AnnexCAudioMode(m.g723AnnexCAudioMode, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeAudioMode(AudioMode& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 14);
  if (m.isExtension) {
    switch (index) {
      case 0: m.g729wAnnexB = PerReadOpenNumber<uint16_t>(r, 1, 256); return;
      case 1: m.g729AnnexAwAnnexB = PerReadOpenNumber<uint16_t>(r, 1, 256); return;
      case 2: return DecodeOpen(m.g7231AnnexCMode, r, DecodeG7231AnnexCMode);
      case 3: return DecodeOpen(m.gsmFullRate, r, DecodeGSMAudioCapability);
      case 4: return DecodeOpen(m.gsmHalfRate, r, DecodeGSMAudioCapability);
      case 5: return DecodeOpen(m.gsmEnhancedFullRate, r, DecodeGSMAudioCapability);
      case 6: return DecodeOpen(m.genericAudioMode, r, DecodeGenericCapability);
      case 7: return DecodeOpen(m.g729Extensions, r, DecodeG729Extensions);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 11: return DecodeNullChoice(m.g7231, r);
    case 12: return DecodeIS11172AudioMode(m.is11172AudioMode, r);
    case 13: return DecodeIS13818AudioMode(m.is13818AudioMode, r);
    default: return;
  }
}

}  // namespace kelvra::h245
