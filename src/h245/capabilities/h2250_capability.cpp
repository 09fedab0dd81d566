#include "h245/capabilities/data_application_decode.h"
#include "h245/capabilities/h2250_capability_decode.h"
#include "h245/channels/data_type_decode.h"
#include "h245/channels/h2250_parameters_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeMediaDistributionCapability(MediaDistributionCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 9);
  m.isExtended = flags.Next();
  m.hasCentralizedData = flags.Next();
  m.hasDistributedData = flags.Next();
  m.centralizedControl = flags.Next();
  m.distributedControl = flags.Next();
  m.centralizedAudio = flags.Next();
  m.distributedAudio = flags.Next();
  m.centralizedVideo = flags.Next();
  m.distributedVideo = flags.Next();
  if (m.hasCentralizedData)
    KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.centralizedData), r, DecodeDataApplicationCapability));
  if (m.hasDistributedData)
    KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.distributedData), r, DecodeDataApplicationCapability));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMultipointCapability(MultipointCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.multicastCapability = flags.Next();
  m.multiUniCastConference = flags.Next();
  KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.mediaDistributionCapability), r, DecodeMediaDistributionCapability));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodePayloadDescriptor(RTPPayloadType::PayloadDescriptor& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandardIdentifier, r);
    case 1: m.rfcNumber = PerReadExtensibleNumber(r, 1, 32768); return;
    case 2: return PerReadObjectIdentifier(m.oid, r);
    default: return;
  }
}

void DecodeRTPPayloadType(RTPPayloadType& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasPayloadType = flags.Next();
  DecodePayloadDescriptor(m.payloadDescriptor, r);
  if (m.hasPayloadType) m.payloadType = PerReadNumber<uint8_t>(r, 0, 127);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMediaPacketizationCapability(MediaPacketizationCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.h261aVideoPacketization = flags.Next();
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasRtpPayloadType = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasRtpPayloadType) DecodeOpenSizedSequenceOf(KELVRA_LIST(m.rtpPayloadType), r, 1, 256, DecodeRTPPayloadType);
  PerSkipOpenTypes(r, unknown);
}

void DecodeRedundancyEncodingCapability(RedundancyEncodingCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasSecondaryEncoding = flags.Next();
  DecodeRedundancyEncodingMethod(m.redundancyEncodingMethod, r);
  m.primaryEncoding = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasSecondaryEncoding)
    KELVRA_OR_STOP(
        DecodeSizedSequenceOf(KELVRA_LIST(m.secondaryEncoding), r, 1, 256, PerReadElement<uint16_t, 1, 65535>));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMcCapability(H2250Capability::McCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.centralizedConferenceMC = flags.Next();
  m.decentralizedConferenceMC = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeH2250Capability(H2250Capability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.maximumAudioDelayJitter = PerReadNumber<uint16_t>(r, 0, 1023);
  DecodeMultipointCapability(m.receiveMultipointCapability, r);
  DecodeMultipointCapability(m.transmitMultipointCapability, r);
  DecodeMultipointCapability(m.receiveAndTransmitMultipointCapability, r);
  DecodeMcCapability(m.mcCapability, r);
  m.rtcpVideoControlCapability = PerReadBit(r);
  DecodeMediaPacketizationCapability(m.mediaPacketizationCapability, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 4);
  m.hasTransportCapability = known.Next();
  m.hasRedundancyEncodingCapability = known.Next();
  m.hasLogicalChannelSwitchingCapability = known.Next();
  m.hasT120DynamicPortCapability = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasTransportCapability) DecodeOpen(m.transportCapability, r, DecodeTransportCapability);
  if (m.hasRedundancyEncodingCapability)
    DecodeOpenSizedSequenceOf(KELVRA_LIST(m.redundancyEncodingCapability), r, 1, 256,
                              DecodeRedundancyEncodingCapability);
  if (m.hasLogicalChannelSwitchingCapability) m.logicalChannelSwitchingCapability = PerReadOpenBoolean(r);
  if (m.hasT120DynamicPortCapability) m.t120DynamicPortCapability = PerReadOpenBoolean(r);
  PerSkipOpenTypes(r, unknown);
}

}  // namespace kelvra::h245
