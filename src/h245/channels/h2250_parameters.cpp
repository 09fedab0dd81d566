#include "h245/channels/data_type_decode.h"
#include "h245/channels/h2250_parameters_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/common/transport_address_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeAtmAAL5Compressed(MediaTransportType::AtmAAL5Compressed& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.variableDelta = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

// rtpPayloadType, extension index 0, is passed over; of index 1 the first octet is kept.
void DecodeMediaPacketization(H2250LogicalChannelParameters::MediaPacketization& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 1);
  if (!m.isExtension) return;
  if (index != 1) return PerSkipOpenTypes(r, 1);
  m.mediaPacketizationOctet = PerReadOpenNumber<uint8_t>(r, 0, 255);
}

void DecodeRSVPParameters(RSVPParameters& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 7);
  m.isExtended = flags.Next();
  m.hasQosMode = flags.Next();
  m.hasTokenRate = flags.Next();
  m.hasBucketSize = flags.Next();
  m.hasPeakRate = flags.Next();
  m.hasMinPoliced = flags.Next();
  m.hasMaxPktSize = flags.Next();
  if (m.hasQosMode) DecodeNullChoice(m.qosMode, r);
  if (m.hasTokenRate) m.tokenRate = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasBucketSize) m.bucketSize = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasPeakRate) m.peakRate = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasMinPoliced) m.minPoliced = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasMaxPktSize) m.maxPktSize = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeATMParameters(ATMParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.maxNTUSize = PerReadNumber<uint16_t>(r, 0, 65535);
  PerFlags flags = PerReadFlags(r, 5);
  m.atmUBR = flags.Next();
  m.atmrtVBR = flags.Next();
  m.atmnrtVBR = flags.Next();
  m.atmABR = flags.Next();
  m.atmCBR = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMediaTransportType(MediaTransportType& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.atmAAL5Compressed, r, DecodeAtmAAL5Compressed);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
}

void DecodeMediaChannelCapability(MediaChannelCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasMediaTransport = flags.Next();
  if (m.hasMediaTransport) DecodeMediaTransportType(m.mediaTransport, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeTerminalLabel(TerminalLabel& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  // INTEGER (0..192) has 193 values, which take 8 bits like 192.
  m.mcuNumber = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, 192));
  m.terminalNumber = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, 192));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeQOSCapability(QOSCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasRsvpParameters = flags.Next();
  m.hasAtmParameters = flags.Next();
  if (m.hasNonStandardData) DecodeNonStandardParameter(m.nonStandardData, r);
  if (m.hasRsvpParameters) DecodeRSVPParameters(m.rsvpParameters, r);
  if (m.hasAtmParameters) DecodeATMParameters(m.atmParameters, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeTransportCapability(TransportCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasNonStandard = flags.Next();
  m.hasQOSCapabilities = flags.Next();
  m.hasMediaChannelCapabilities = flags.Next();
  if (m.hasNonStandard) DecodeNonStandardParameter(m.nonStandard, r);
  if (m.hasQOSCapabilities)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.qOSCapabilities), r, 1, 256, DecodeQOSCapability));
  if (m.hasMediaChannelCapabilities)
    KELVRA_OR_STOP(
        DecodeSizedSequenceOf(KELVRA_LIST(m.mediaChannelCapabilities), r, 1, 256, DecodeMediaChannelCapability));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH2250LogicalChannelParameters(H2250LogicalChannelParameters& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 11);
  m.isExtended = flags.Next();
  m.hasNonStandard = flags.Next();
  m.hasAssociatedSessionID = flags.Next();
  m.hasMediaChannel = flags.Next();
  m.hasMediaGuaranteedDelivery = flags.Next();
  m.hasMediaControlChannel = flags.Next();
  m.hasMediaControlGuaranteedDelivery = flags.Next();
  m.hasSilenceSuppression = flags.Next();
  m.hasDestination = flags.Next();
  m.hasDynamicRTPPayloadType = flags.Next();
  m.hasMediaPacketization = flags.Next();
  if (m.hasNonStandard) KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.nonStandard), r, DecodeNonStandardParameter));
  m.sessionID = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.hasAssociatedSessionID) m.associatedSessionID = PerReadNumber<uint8_t>(r, 1, 255);
  if (m.hasMediaChannel) DecodeTransportAddress(m.mediaChannel, r);
  if (m.hasMediaGuaranteedDelivery) m.mediaGuaranteedDelivery = PerReadBit(r);
  if (m.hasMediaControlChannel) DecodeTransportAddress(m.mediaControlChannel, r);
  if (m.hasMediaControlGuaranteedDelivery) m.mediaControlGuaranteedDelivery = PerReadBit(r);
  if (m.hasSilenceSuppression) m.silenceSuppression = PerReadBit(r);
  if (m.hasDestination) DecodeTerminalLabel(m.destination, r);
  if (m.hasDynamicRTPPayloadType) m.dynamicRTPPayloadType = PerReadNumber<uint8_t>(r, 96, 127);
  if (m.hasMediaPacketization) DecodeMediaPacketization(m.mediaPacketization, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 3);
  m.hasTransportCapability = known.Next();
  m.hasRedundancyEncoding = known.Next();
  m.hasSource = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasTransportCapability) DecodeOpen(m.transportCapability, r, DecodeTransportCapability);
  if (m.hasRedundancyEncoding) DecodeOpen(m.redundancyEncoding, r, DecodeRedundancyEncoding);
  if (m.hasSource) DecodeOpen(m.source, r, DecodeTerminalLabel);
  PerSkipOpenTypes(r, unknown);
}

void DecodeH2250LogicalChannelAckParameters(H2250LogicalChannelAckParameters& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 6);
  m.isExtended = flags.Next();
  m.hasNonStandard = flags.Next();
  m.hasSessionID = flags.Next();
  m.hasMediaChannel = flags.Next();
  m.hasMediaControlChannel = flags.Next();
  m.hasDynamicRTPPayloadType = flags.Next();
  if (m.hasNonStandard) KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.nonStandard), r, DecodeNonStandardParameter));
  if (m.hasSessionID) m.sessionID = PerReadNumber<uint8_t>(r, 1, 255);
  if (m.hasMediaChannel) DecodeTransportAddress(m.mediaChannel, r);
  if (m.hasMediaControlChannel) DecodeTransportAddress(m.mediaControlChannel, r);
  if (m.hasDynamicRTPPayloadType) m.dynamicRTPPayloadType = PerReadNumber<uint8_t>(r, 96, 127);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasFlowControlToZero = known.Next();
  m.hasPortNumber = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasFlowControlToZero) m.flowControlToZero = PerReadOpenBoolean(r);
  if (m.hasPortNumber) m.portNumber = PerReadOpenNumber<uint16_t>(r, 0, 65535);
  PerSkipOpenTypes(r, unknown);
}

}  // namespace kelvra::h245
