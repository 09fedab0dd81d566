#include "h245/capabilities/encryption_decode.h"
#include "h245/channels/data_type_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"
#include "h245/modes/audio_mode_decode.h"
#include "h245/modes/data_mode_decode.h"
#include "h245/modes/mode_element_type_decode.h"
#include "h245/modes/video_mode_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeMediaMode(H235Mode::MediaMode& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeVideoMode(m.videoMode, r);
    case 2: return DecodeAudioMode(m.audioMode, r);
    case 3: return DecodeDataMode(m.dataMode, r);
    default: return;
  }
}

void DecodeH235Mode(H235Mode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeEncryptionAuthenticationAndIntegrity(m.encryptionAuthenticationAndIntegrity, r);
  DecodeMediaMode(m.mediaMode, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeType(RedundancyEncodingDTModeElement::Type& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 6);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeVideoMode(m.videoMode, r);
    case 2: return DecodeAudioMode(m.audioMode, r);
    case 3: return DecodeDataMode(m.dataMode, r);
    case 4: return DecodeEncryptionMode(m.encryptionMode, r);
    case 5: return DecodeH235Mode(m.h235Mode, r);
    default: return;
  }
}

void DecodeRedundancyEncodingDTModeElement(RedundancyEncodingDTModeElement& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeType(m.type, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRedundancyEncodingDTMode(RedundancyEncodingDTMode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeRedundancyEncodingMethod(m.redundancyEncodingMethod, r);
  DecodeRedundancyEncodingDTModeElement(m.primary, r);
  KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.secondary), r, DecodeRedundancyEncodingDTModeElement));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMultiplePayloadStreamElementMode(MultiplePayloadStreamElementMode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeModeElementType(m.type, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMultiplePayloadStreamMode(MultiplePayloadStreamMode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.elements), r, DecodeMultiplePayloadStreamElementMode));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeSamePort(FECMode::Rfc2733Mode::Mode::SeparateStream::SamePort& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodePointer(KELVRA_SLOT(m.protectedType), r, DecodeModeElementType);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeSeparateStream(FECMode::Rfc2733Mode::Mode::SeparateStream& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeDifferentPort(m.differentPort, r);
    case 1: return DecodeSamePort(m.samePort, r);
    default: return;
  }
}

void DecodeMode(FECMode::Rfc2733Mode::Mode& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 1: return DecodeSeparateStream(m.separateStream, r);
    default: return;
  }
}

void DecodeRfc2733Mode(FECMode::Rfc2733Mode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeMode(m.mode, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeFECMode(FECMode& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 1);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeRfc2733Mode(m.rfc2733Mode, r);
    default: return;
  }
}

}  // namespace

void DecodeModeElementType(ModeElementType& m, PerReader& r) {
  const RecursionLevel level(r);
  if (level.TooDeep()) return PerMoveToEnd(r);
  const uint32_t index = ReadChoice(m, r, 5);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.h235Mode, r, DecodeH235Mode);
      case 1: return DecodeOpen(m.multiplexedStreamMode, r, DecodeMultiplexedStreamParameter);
      case 2: return DecodeOpen(m.redundancyEncodingDTMode, r, DecodeRedundancyEncodingDTMode);
      case 3: return DecodeOpen(m.multiplePayloadStreamMode, r, DecodeMultiplePayloadStreamMode);
      case 4: return DecodeOpen(m.fecMode, r, DecodeFECMode);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeVideoMode(m.videoMode, r);
    case 2: return DecodeAudioMode(m.audioMode, r);
    case 3: return DecodeDataMode(m.dataMode, r);
    case 4: return DecodeEncryptionMode(m.encryptionMode, r);
    default: return;
  }
}

}  // namespace kelvra::h245
