#include "h245/capabilities/multiplex_format_decode.h"
#include "h245/channels/network_access_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeAal1(VCCapability::Aal1& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 10);
  m.isExtended = flags.Next();
  m.nullClockRecovery = flags.Next();
  m.srtsClockRecovery = flags.Next();
  m.adaptiveClockRecovery = flags.Next();
  m.nullErrorCorrection = flags.Next();
  m.longInterleaver = flags.Next();
  m.shortInterleaver = flags.Next();
  m.errorCorrectionOnly = flags.Next();
  m.structuredDataTransfer = flags.Next();
  m.partiallyFilledCells = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeAal5(VCCapability::Aal5& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.forwardMaximumSDUSize = PerReadNumber<uint16_t>(r, 0, 65535);
  m.backwardMaximumSDUSize = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRangeOfBitRates(VCCapability::AvailableBitRates::Type::RangeOfBitRates& m, PerReader& r) {
  m.lowerBitRate = PerReadNumber<uint16_t>(r, 1, 65535);
  m.higherBitRate = PerReadNumber<uint16_t>(r, 1, 65535);
}

void DecodeType(VCCapability::AvailableBitRates::Type& m, PerReader& r) {
  const uint32_t index = ReadRootChoice(m, r, 2);
  switch (index) {
    case 0: m.singleBitRate = PerReadNumber<uint16_t>(r, 1, 65535); return;
    case 1: return DecodeRangeOfBitRates(m.rangeOfBitRates, r);
    default: return;
  }
}

void DecodeAvailableBitRates(VCCapability::AvailableBitRates& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeType(m.type, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeAal1ViaGateway(VCCapability::Aal1ViaGateway& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.gatewayAddress), r, 1, 256, DecodeQ2931Address));
  PerFlags flags = PerReadFlags(r, 9);
  m.nullClockRecovery = flags.Next();
  m.srtsClockRecovery = flags.Next();
  m.adaptiveClockRecovery = flags.Next();
  m.nullErrorCorrection = flags.Next();
  m.longInterleaver = flags.Next();
  m.shortInterleaver = flags.Next();
  m.errorCorrectionOnly = flags.Next();
  m.structuredDataTransfer = flags.Next();
  m.partiallyFilledCells = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeEnhanced(H223Capability::H223MultiplexTableCapability::Enhanced& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.maximumNestingDepth = PerReadNumber<uint8_t>(r, 1, 15);
  m.maximumElementListSize = PerReadNumber<uint8_t>(r, 2, 255);
  m.maximumSubElementListSize = PerReadNumber<uint8_t>(r, 2, 255);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH223MultiplexTableCapability(H223Capability::H223MultiplexTableCapability& m, PerReader& r) {
  const uint32_t index = ReadRootChoice(m, r, 2);
  switch (index) {
    case 1: return DecodeEnhanced(m.enhanced, r);
    default: return;
  }
}

void DecodeMobileOperationTransmitCapability(H223Capability::MobileOperationTransmitCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 6);
  m.isExtended = flags.Next();
  m.modeChangeCapability = flags.Next();
  m.h223AnnexA = flags.Next();
  m.h223AnnexADoubleFlag = flags.Next();
  m.h223AnnexB = flags.Next();
  m.h223AnnexBwithHeader = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMobileMultilinkFrameCapability(H223Capability::MobileMultilinkFrameCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.maximumSampleSize = PerReadNumber<uint8_t>(r, 1, 255);
  m.maximumPayloadLength = PerReadNumber<uint16_t>(r, 1, 65025);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeVCCapability(VCCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasAal1 = flags.Next();
  m.hasAal5 = flags.Next();
  if (m.hasAal1) DecodeAal1(m.aal1, r);
  if (m.hasAal5) DecodeAal5(m.aal5, r);
  flags = PerReadFlags(r, 2);
  m.transportStream = flags.Next();
  m.programStream = flags.Next();
  DecodeAvailableBitRates(m.availableBitRates, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasAal1ViaGateway = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasAal1ViaGateway) DecodeOpen(m.aal1ViaGateway, r, DecodeAal1ViaGateway);
  PerSkipOpenTypes(r, unknown);
}

void DecodeH223AnnexCCapability(H223AnnexCCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 11);
  m.isExtended = flags.Next();
  m.videoWithAL1M = flags.Next();
  m.videoWithAL2M = flags.Next();
  m.videoWithAL3M = flags.Next();
  m.audioWithAL1M = flags.Next();
  m.audioWithAL2M = flags.Next();
  m.audioWithAL3M = flags.Next();
  m.dataWithAL1M = flags.Next();
  m.dataWithAL2M = flags.Next();
  m.dataWithAL3M = flags.Next();
  m.alpduInterleaving = flags.Next();
  m.maximumAL1MPDUSize = PerReadNumber<uint16_t>(r, 0, 65535);
  m.maximumAL2MSDUSize = PerReadNumber<uint16_t>(r, 0, 65535);
  m.maximumAL3MSDUSize = PerReadNumber<uint16_t>(r, 0, 65535);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasRsCodeCapability = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasRsCodeCapability) m.rsCodeCapability = PerReadOpenBoolean(r);
  PerSkipOpenTypes(r, unknown);
}

}  // namespace

void DecodeH222Capability(H222Capability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.numberOfVCs = PerReadNumber<uint16_t>(r, 1, 256);
  KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.vcCapability), r, DecodeVCCapability));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH223Capability(H223Capability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 11);
  m.isExtended = flags.Next();
  m.transportWithIFrames = flags.Next();
  m.videoWithAL1 = flags.Next();
  m.videoWithAL2 = flags.Next();
  m.videoWithAL3 = flags.Next();
  m.audioWithAL1 = flags.Next();
  m.audioWithAL2 = flags.Next();
  m.audioWithAL3 = flags.Next();
  m.dataWithAL1 = flags.Next();
  m.dataWithAL2 = flags.Next();
  m.dataWithAL3 = flags.Next();
  m.maximumAl2SDUSize = PerReadNumber<uint16_t>(r, 0, 65535);
  m.maximumAl3SDUSize = PerReadNumber<uint16_t>(r, 0, 65535);
  m.maximumDelayJitter = PerReadNumber<uint16_t>(r, 0, 1023);
  DecodeH223MultiplexTableCapability(m.h223MultiplexTableCapability, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 6);
  m.hasMaxMUXPDUSizeCapability = known.Next();
  m.hasNsrpSupport = known.Next();
  m.hasMobileOperationTransmitCapability = known.Next();
  m.hasH223AnnexCCapability = known.Next();
  m.hasBitRate = known.Next();
  m.hasMobileMultilinkFrameCapability = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasMaxMUXPDUSizeCapability) m.maxMUXPDUSizeCapability = PerReadOpenBoolean(r);
  if (m.hasNsrpSupport) m.nsrpSupport = PerReadOpenBoolean(r);
  if (m.hasMobileOperationTransmitCapability)
    DecodeOpen(m.mobileOperationTransmitCapability, r, DecodeMobileOperationTransmitCapability);
  if (m.hasH223AnnexCCapability) DecodeOpen(m.h223AnnexCCapability, r, DecodeH223AnnexCCapability);
  if (m.hasBitRate) m.bitRate = PerReadOpenNumber<uint16_t>(r, 1, 19200);
  if (m.hasMobileMultilinkFrameCapability)
    DecodeOpen(m.mobileMultilinkFrameCapability, r, DecodeMobileMultilinkFrameCapability);
  PerSkipOpenTypes(r, unknown);
}

void DecodeMultiplexFormat(MultiplexFormat& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeH222Capability(m.h222Capability, r);
    case 2: return DecodeH223Capability(m.h223Capability, r);
    default: return;
  }
}

}  // namespace kelvra::h245
