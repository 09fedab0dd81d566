#include "h245/data_type_decode.h"
#include "h245/decode.h"
#include "h245/h2250_parameters_decode.h"
#include "h245/non_standard_decode.h"
#include "h245/transport_address_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeAtmAAL5Compressed(MediaTransportType::AtmAAL5Compressed& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.variableDelta = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

// rtpPayloadType, extension index 0, is passed over; of index 1 the first octet is kept.
void DecodeMediaPacketization(H2250LogicalChannelParameters::MediaPacketization& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 1);
  if (!m.isExtension) return;
  if (index != 1) return PerSkipOpenTypes(r, 1);
  InOpenType(r, [&] { m.mediaPacketizationOctet = PerReadNumber<uint8_t>(r, 0, 255); });
}

}  // namespace

void DecodeTerminalLabel(TerminalLabel& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.mcuNumber = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, 192));
  m.terminalNumber = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, 192));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRSVPParameters(RSVPParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasQosMode = PerReadBit(r);
  m.hasTokenRate = PerReadBit(r);
  m.hasBucketSize = PerReadBit(r);
  m.hasPeakRate = PerReadBit(r);
  m.hasMinPoliced = PerReadBit(r);
  m.hasMaxPktSize = PerReadBit(r);
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
  m.atmUBR = PerReadBit(r);
  m.atmrtVBR = PerReadBit(r);
  m.atmnrtVBR = PerReadBit(r);
  m.atmABR = PerReadBit(r);
  m.atmCBR = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeQOSCapability(QOSCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasNonStandardData = PerReadBit(r);
  m.hasRsvpParameters = PerReadBit(r);
  m.hasAtmParameters = PerReadBit(r);
  if (m.hasNonStandardData) DecodeNonStandardParameter(m.nonStandardData, r);
  if (m.hasRsvpParameters) DecodeRSVPParameters(m.rsvpParameters, r);
  if (m.hasAtmParameters) DecodeATMParameters(m.atmParameters, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMediaTransportType(MediaTransportType& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) {
    switch (index) {
      case 0: return InOpenType(r, [&] { DecodeAtmAAL5Compressed(m.atmAAL5Compressed, r); });
      default: return PerSkipOpenTypes(r, 1);
    }
  }
}

void DecodeMediaChannelCapability(MediaChannelCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasMediaTransport = PerReadBit(r);
  if (m.hasMediaTransport) DecodeMediaTransportType(m.mediaTransport, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeTransportCapability(TransportCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasNonStandard = PerReadBit(r);
  m.hasQOSCapabilities = PerReadBit(r);
  m.hasMediaChannelCapabilities = PerReadBit(r);
  if (m.hasNonStandard) DecodeNonStandardParameter(m.nonStandard, r);
  if (m.hasQOSCapabilities) {
    m.qOSCapabilitiesCount = PerReadNumber<uint16_t>(r, 1, 256);
    if (!DecodeList(r, Slot<QOSCapability>(&m.qOSCapabilities), m.qOSCapabilitiesCount, DecodeQOSCapability)) return;
  }
  if (m.hasMediaChannelCapabilities) {
    m.mediaChannelCapabilitiesCount = PerReadNumber<uint16_t>(r, 1, 256);
    if (!DecodeList(r, Slot<MediaChannelCapability>(&m.mediaChannelCapabilities), m.mediaChannelCapabilitiesCount,
                    DecodeMediaChannelCapability))
      return;
  }
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH2250LogicalChannelParameters(H2250LogicalChannelParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasNonStandard = PerReadBit(r);
  m.hasAssociatedSessionID = PerReadBit(r);
  m.hasMediaChannel = PerReadBit(r);
  m.hasMediaGuaranteedDelivery = PerReadBit(r);
  m.hasMediaControlChannel = PerReadBit(r);
  m.hasMediaControlGuaranteedDelivery = PerReadBit(r);
  m.hasSilenceSuppression = PerReadBit(r);
  m.hasDestination = PerReadBit(r);
  m.hasDynamicRTPPayloadType = PerReadBit(r);
  m.hasMediaPacketization = PerReadBit(r);
  if (m.hasNonStandard)
    if (!DecodeSequenceOf(r, &m.nonStandardCount, Slot<NonStandardParameter>(&m.nonStandard),
                          DecodeNonStandardParameter))
      return;
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

  const uint8_t additions = PerReadBitmapLength8(r);
  m.hasTransportCapability = PerReadAdditionBit(r, additions, 0);
  m.hasRedundancyEncoding = PerReadAdditionBit(r, additions, 1);
  m.hasSource = PerReadAdditionBit(r, additions, 2);
  const int32_t unknown = PerCountUnknownAdditions(r, additions, 3);
  if (m.hasTransportCapability) InOpenType(r, [&] { DecodeTransportCapability(m.transportCapability, r); });
  if (m.hasRedundancyEncoding) InOpenType(r, [&] { DecodeRedundancyEncoding(m.redundancyEncoding, r); });
  if (m.hasSource) InOpenType(r, [&] { DecodeTerminalLabel(m.source, r); });
  PerSkipOpenTypes(r, unknown);
}

void DecodeH2250LogicalChannelAckParameters(H2250LogicalChannelAckParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasNonStandard = PerReadBit(r);
  m.hasSessionID = PerReadBit(r);
  m.hasMediaChannel = PerReadBit(r);
  m.hasMediaControlChannel = PerReadBit(r);
  m.hasDynamicRTPPayloadType = PerReadBit(r);
  if (m.hasNonStandard)
    if (!DecodeSequenceOf(r, &m.nonStandardCount, Slot<NonStandardParameter>(&m.nonStandard),
                          DecodeNonStandardParameter))
      return;
  if (m.hasSessionID) m.sessionID = PerReadNumber<uint8_t>(r, 1, 255);
  if (m.hasMediaChannel) DecodeTransportAddress(m.mediaChannel, r);
  if (m.hasMediaControlChannel) DecodeTransportAddress(m.mediaControlChannel, r);
  if (m.hasDynamicRTPPayloadType) m.dynamicRTPPayloadType = PerReadNumber<uint8_t>(r, 96, 127);
  if (!m.isExtended) return;

  const uint8_t additions = PerReadBitmapLength8(r);
  m.hasFlowControlToZero = PerReadAdditionBit(r, additions, 0);
  m.hasPortNumber = PerReadAdditionBit(r, additions, 1);
  const int32_t unknown = PerCountUnknownAdditions(r, additions, 2);
  if (m.hasFlowControlToZero) m.flowControlToZero = PerReadOpenBoolean(r);
  if (m.hasPortNumber) InOpenType(r, [&] { m.portNumber = PerReadNumber<uint16_t>(r, 0, 65535); });
  PerSkipOpenTypes(r, unknown);
}

}  // namespace kelvra::h245
