#include "h245/capabilities/audio_capability_decode.h"
#include "h245/capabilities/data_application_decode.h"
#include "h245/capabilities/encryption_decode.h"
#include "h245/capabilities/multiplex_format_decode.h"
#include "h245/capabilities/video_capability_decode.h"
#include "h245/channels/data_type_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"
#include "record/release.h"

namespace kelvra::h245 {
namespace {

void DecodeRTPH263VideoRedundancyFrameMapping(RTPH263VideoRedundancyFrameMapping& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.threadNumber = PerReadNumber<uint8_t>(r, 0, 15);
  KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.frameSequence), r, 1, 256, PerReadElement<uint8_t, 0, 255>));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeFrameToThreadMapping(RTPH263VideoRedundancyEncoding::FrameToThreadMapping& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 1:
      KELVRA_OR_STOP(DecodeSizedSequenceOf(ListOf(m.custom), r, 1, 256, DecodeRTPH263VideoRedundancyFrameMapping));
      return;
    default: return;
  }
}

void DecodeRedundancyEncodingElement(RedundancyEncodingElement& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasPayloadType = flags.Next();
  DecodePointer(KELVRA_SLOT(m.dataType), r, DecodeDataType);
  if (m.hasPayloadType) m.payloadType = PerReadNumber<uint8_t>(r, 0, 127);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

// The count of `secondary` is one aligned octet. Where its block is refused, the secondaryEncoding
// decoded before is released at once.
void DecodeRtpRedundancyEncoding(RedundancyEncoding& m, PerReader& r) {
  RedundancyEncoding::RtpRedundancyEncoding& rtp = m.rtpRedundancyEncoding;
  PerFlags flags = PerReadFlags(r, 3);
  rtp.isExtended = flags.Next();
  rtp.hasPrimary = flags.Next();
  rtp.hasSecondary = flags.Next();
  if (rtp.hasPrimary) DecodeRedundancyEncodingElement(rtp.primary, r);
  if (rtp.hasSecondary &&
      DecodeSizedSequenceOf(KELVRA_LIST(rtp.secondary), r, 0, 255, DecodeRedundancyEncodingElement) != kDecoded) {
    ReleaseVisitor release("codec/h245func");
    return release.Pointer("secondaryEncoding", KELVRA_SLOT(m.secondaryEncoding));
  }
  if (rtp.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeSamePort(FECData::Rfc2733::Mode::SeparateStream::SamePort& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.protectedPayloadType = PerReadNumber<uint8_t>(r, 0, 127);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeSeparateStream(FECData::Rfc2733::Mode::SeparateStream& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeDifferentPort(m.differentPort, r);
    case 1: return DecodeSamePort(m.samePort, r);
    default: return;
  }
}

void DecodeMode(FECData::Rfc2733::Mode& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 1: return DecodeSeparateStream(m.separateStream, r);
    default: return;
  }
}

void DecodeRfc2733(FECData::Rfc2733& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeMode(m.mode, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMultiplePayloadStream(MultiplePayloadStream& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.elements), r, DecodeRedundancyEncodingElement));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeFECData(FECData& m, PerReader& r) {
  const uint32_t index = ReadRootChoice(m, r, 1);
  switch (index) {
    case 0: return DecodeRfc2733(m.rfc2733, r);
    default: return;
  }
}

void DecodeMediaType(H235Media::MediaType& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.redundancyEncoding, r, DecodeRedundancyEncoding);
      case 1: return DecodeOpen(m.multiplePayloadStream, r, DecodeMultiplePayloadStream);
      case 2: return DecodeOpen(m.fec, r, DecodeFECData);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeVideoCapability(m.videoData, r);
    case 2: return DecodeAudioCapability(m.audioData, r);
    case 3: return DecodeDataApplicationCapability(m.data, r);
    default: return;
  }
}

void DecodeRTPH263VideoRedundancyEncoding(RTPH263VideoRedundancyEncoding& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasContainedThreads = flags.Next();
  m.numberOfThreads = PerReadNumber<uint8_t>(r, 1, 16);
  m.framesBetweenSyncPoints = PerReadNumber<uint16_t>(r, 1, 256);
  DecodeFrameToThreadMapping(m.frameToThreadMapping, r);
  if (m.hasContainedThreads)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.containedThreads), r, 1, 256, PerReadElement<uint8_t, 0, 15>));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH235Media(H235Media& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeEncryptionAuthenticationAndIntegrity(m.encryptionAuthenticationAndIntegrity, r);
  DecodeMediaType(m.mediaType, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeRedundancyEncodingMethod(RedundancyEncodingMethod& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.rtpH263VideoRedundancyEncoding, r, DecodeRTPH263VideoRedundancyEncoding);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    default: return;
  }
}

void DecodeRedundancyEncoding(RedundancyEncoding& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasSecondaryEncoding = flags.Next();
  DecodeRedundancyEncodingMethod(m.redundancyEncodingMethod, r);
  if (m.hasSecondaryEncoding) DecodePointer(KELVRA_SLOT(m.secondaryEncoding), r, DecodeDataType);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasRtpRedundancyEncoding = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasRtpRedundancyEncoding) DecodeOpen(m, r, DecodeRtpRedundancyEncoding);
  PerSkipOpenTypes(r, unknown);
}

void DecodeDifferentPort(FECData::Rfc2733::Mode::SeparateStream::DifferentPort& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasProtectedPayloadType = flags.Next();
  m.protectedSessionID = PerReadNumber<uint8_t>(r, 1, 255);
  if (m.hasProtectedPayloadType) m.protectedPayloadType = PerReadNumber<uint8_t>(r, 0, 127);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMultiplexedStreamParameter(MultiplexedStreamParameter& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeMultiplexFormat(m.multiplexFormat, r);
  m.controlOnMuxStream = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeDataType(DataType& m, PerReader& r) {
  const RecursionLevel level(r);
  if (level.TooDeep()) return PerMoveToEnd(r);
  const uint32_t index = ReadChoice(m, r, 6);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.h235Control, r, DecodeNonStandardParameter);
      case 1: return DecodeOpen(m.h235Media, r, DecodeH235Media);
      case 2: return DecodeOpen(m.multiplexedStream, r, DecodeMultiplexedStreamParameter);
      case 3: return DecodeOpen(m.redundancyEncoding, r, DecodeRedundancyEncoding);
      case 4: return DecodeOpen(m.multiplePayloadStream, r, DecodeMultiplePayloadStream);
      case 5: return DecodeOpen(m.fec, r, DecodeFECData);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 2: return DecodeVideoCapability(m.videoData, r);
    case 3: return DecodeAudioCapability(m.audioData, r);
    case 4: return DecodeDataApplicationCapability(m.data, r);
    case 5: return DecodeEncryptionMode(m.encryptionData, r);
    default: return;
  }
}

}  // namespace kelvra::h245
