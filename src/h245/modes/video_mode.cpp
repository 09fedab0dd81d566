#include "h245/capabilities/video_capability_decode.h"
#include "h245/common/generic_capability_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"
#include "h245/modes/video_mode_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeH261VideoMode(H261VideoMode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.resolution, r);
  m.bitRate = PerReadNumber<uint16_t>(r, 1, 19200);
  m.stillImageTransmission = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH262VideoMode(H262VideoMode& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 7);
  m.isExtended = flags.Next();
  m.hasVideoBitRate = flags.Next();
  m.hasVbvBufferSize = flags.Next();
  m.hasSamplesPerLine = flags.Next();
  m.hasLinesPerFrame = flags.Next();
  m.hasFramesPerSecond = flags.Next();
  m.hasLuminanceSampleRate = flags.Next();
  DecodeNullChoice(m.profileAndLevel, r);
  if (m.hasVideoBitRate) m.videoBitRate = PerReadNumber<uint32_t>(r, 0, 1073741823);
  if (m.hasVbvBufferSize) m.vbvBufferSize = PerReadNumber<uint32_t>(r, 0, 262143);
  if (m.hasSamplesPerLine) m.samplesPerLine = PerReadNumber<uint16_t>(r, 0, 16383);
  if (m.hasLinesPerFrame) m.linesPerFrame = PerReadNumber<uint16_t>(r, 0, 16383);
  if (m.hasFramesPerSecond) m.framesPerSecond = PerReadNumber<uint8_t>(r, 0, 15);
  if (m.hasLuminanceSampleRate) m.luminanceSampleRate = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH263VideoMode(H263VideoMode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.resolution, r);
  m.bitRate = PerReadNumber<uint16_t>(r, 1, 19200);
  PerFlags flags = PerReadFlags(r, 4);
  m.unrestrictedVector = flags.Next();
  m.arithmeticCoding = flags.Next();
  m.advancedPrediction = flags.Next();
  m.pbFrames = flags.Next();
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 3);
  m.hasErrorCompensation = known.Next();
  m.hasEnhancementLayerInfo = known.Next();
  m.hasH263Options = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasErrorCompensation) m.errorCompensation = PerReadOpenBoolean(r);
  if (m.hasEnhancementLayerInfo) DecodeOpen(m.enhancementLayerInfo, r, DecodeEnhancementLayerInfo);
  if (m.hasH263Options) DecodeOpen(m.h263Options, r, DecodeH263Options);
  PerSkipOpenTypes(r, unknown);
}

void DecodeIS11172VideoMode(IS11172VideoMode& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 8);
  m.isExtended = flags.Next();
  m.hasVideoBitRate = flags.Next();
  m.hasVbvBufferSize = flags.Next();
  m.hasSamplesPerLine = flags.Next();
  m.hasLinesPerFrame = flags.Next();
  m.hasPictureRate = flags.Next();
  m.hasLuminanceSampleRate = flags.Next();
  m.constrainedBitstream = flags.Next();
  if (m.hasVideoBitRate) m.videoBitRate = PerReadNumber<uint32_t>(r, 0, 1073741823);
  if (m.hasVbvBufferSize) m.vbvBufferSize = PerReadNumber<uint32_t>(r, 0, 262143);
  if (m.hasSamplesPerLine) m.samplesPerLine = PerReadNumber<uint16_t>(r, 0, 16383);
  if (m.hasLinesPerFrame) m.linesPerFrame = PerReadNumber<uint16_t>(r, 0, 16383);
  if (m.hasPictureRate) m.pictureRate = PerReadNumber<uint8_t>(r, 0, 15);
  if (m.hasLuminanceSampleRate) m.luminanceSampleRate = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeVideoMode(VideoMode& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 5);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.genericVideoMode, r, DecodeGenericCapability);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeH261VideoMode(m.h261VideoMode, r);
    case 2: return DecodeH262VideoMode(m.h262VideoMode, r);
    case 3: return DecodeH263VideoMode(m.h263VideoMode, r);
    case 4: return DecodeIS11172VideoMode(m.is11172VideoMode, r);
    default: return;
  }
}

}  // namespace kelvra::h245
