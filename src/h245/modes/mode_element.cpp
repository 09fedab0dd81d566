#include "h245/channels/data_type_decode.h"
#include "h245/channels/multiplex_parameters_decode.h"
#include "h245/common/generic_capability_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"
#include "h245/modes/audio_mode_decode.h"
#include "h245/modes/mode_element_decode.h"
#include "h245/modes/mode_element_type_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeSecondaryEncoding(RedundancyEncodingMode::SecondaryEncoding& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeAudioMode(m.audioData, r);
    default: return;
  }
}

void DecodeRedundancyEncodingMode(RedundancyEncodingMode& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasSecondaryEncoding = flags.Next();
  DecodeRedundancyEncodingMethod(m.redundancyEncodingMethod, r);
  if (m.hasSecondaryEncoding) DecodeSecondaryEncoding(m.secondaryEncoding, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH2250ModeParameters(H2250ModeParameters& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasRedundancyEncodingMode = flags.Next();
  if (m.hasRedundancyEncodingMode) DecodeRedundancyEncodingMode(m.redundancyEncodingMode, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMultiplexedStreamModeParameters(MultiplexedStreamModeParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.logicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeModeElement(ModeElement& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasH223ModeParameters = flags.Next();
  DecodeModeElementType(m.type, r);
  if (m.hasH223ModeParameters) DecodeH223LogicalChannelParameters(m.h223ModeParameters, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 5);
  m.hasV76ModeParameters = known.Next();
  m.hasH2250ModeParameters = known.Next();
  m.hasGenericModeParameters = known.Next();
  m.hasMultiplexedStreamModeParameters = known.Next();
  m.hasLogicalChannelNumber = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasV76ModeParameters) DecodeOpen(m.v76ModeParameters, r, DecodeNullChoice);
  if (m.hasH2250ModeParameters) DecodeOpen(m.h2250ModeParameters, r, DecodeH2250ModeParameters);
  if (m.hasGenericModeParameters) DecodeOpen(m.genericModeParameters, r, DecodeGenericCapability);
  if (m.hasMultiplexedStreamModeParameters) {
    DecodeOpen(m.multiplexedStreamModeParameters, r, DecodeMultiplexedStreamModeParameters);
  }
  if (m.hasLogicalChannelNumber) m.logicalChannelNumber = PerReadOpenNumber<uint16_t>(r, 1, 65535);
  PerSkipOpenTypes(r, unknown);
}

}  // namespace kelvra::h245
