#include "h245/channels/multiplex_parameters_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeNumberOfRetransmissions(H223AnnexCArqParameters::NumberOfRetransmissions& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: m.finite = PerReadNumber<uint8_t>(r, 0, 16); return;
    default: return;
  }
}

void DecodeH223AnnexCArqParameters(H223AnnexCArqParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNumberOfRetransmissions(m.numberOfRetransmissions, r);
  m.sendBufferSize = PerReadNumber<uint32_t>(r, 0, 16777215);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeArqType(H223ArqType& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 1: return DecodeH223AnnexCArqParameters(m.typeIArq, r);
    case 2: return DecodeH223AnnexCArqParameters(m.typeIIArq, r);
    default: return;
  }
}

void DecodeAl3(H223LogicalChannelParameters::AdaptationLayerType::Al3& m, PerReader& r) {
  m.controlFieldOctets = PerReadNumber<uint8_t>(r, 0, 2);
  m.sendBufferSize = PerReadNumber<uint32_t>(r, 0, 16777215);
}

void DecodeH223AL1MParameters(H223AL1MParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.transferMode, r);
  DecodeNullChoice(m.headerFEC, r);
  DecodeNullChoice(m.crcLength, r);
  m.rcpcCodeRate = PerReadNumber<uint8_t>(r, 8, 32);
  DecodeArqType(m.arqType, r);
  PerFlags flags = PerReadFlags(r, 2);
  m.alpduInterleaving = flags.Next();
  m.alsduSplitting = flags.Next();
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasRsCodeCorrection = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasRsCodeCorrection) m.rsCodeCorrection = PerReadOpenNumber<uint8_t>(r, 0, 127);
  PerSkipOpenTypes(r, unknown);
}

void DecodeH223AL2MParameters(H223AL2MParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.headerFEC, r);
  m.alpduInterleaving = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH223AL3MParameters(H223AL3MParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.headerFormat, r);
  DecodeNullChoice(m.crcLength, r);
  m.rcpcCodeRate = PerReadNumber<uint8_t>(r, 8, 32);
  DecodeArqType(m.arqType, r);
  m.alpduInterleaving = PerReadBit(r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasRsCodeCorrection = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasRsCodeCorrection) m.rsCodeCorrection = PerReadOpenNumber<uint8_t>(r, 0, 127);
  PerSkipOpenTypes(r, unknown);
}

void DecodeAdaptationLayerType(H223LogicalChannelParameters::AdaptationLayerType& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 6);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.al1M, r, DecodeH223AL1MParameters);
      case 1: return DecodeOpen(m.al2M, r, DecodeH223AL2MParameters);
      case 2: return DecodeOpen(m.al3M, r, DecodeH223AL3MParameters);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 5: return DecodeAl3(m.al3, r);
    default: return;
  }
}

void DecodeERM(V76LogicalChannelParameters::Mode::ERM& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.windowSize = PerReadNumber<uint8_t>(r, 1, 127);
  DecodeNullChoice(m.recovery, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMode(V76LogicalChannelParameters::Mode& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeERM(m.eRM, r);
    default: return;
  }
}

void DecodeV76HDLCParameters(V76HDLCParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.crcLength, r);
  m.n401 = PerReadNumber<uint16_t>(r, 1, 4095);
  m.loopbackTestProcedure = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeV75Parameters(V75Parameters& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.audioHeaderPresent = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeH222LogicalChannelParameters(H222LogicalChannelParameters& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasPcrPid = flags.Next();
  m.hasProgramDescriptors = flags.Next();
  m.hasStreamDescriptors = flags.Next();
  m.resourceID = PerReadNumber<uint16_t>(r, 0, 65535);
  m.subChannelID = PerReadNumber<uint16_t>(r, 0, 8191);
  if (m.hasPcrPid) m.pcrPid = PerReadNumber<uint16_t>(r, 0, 8191);
  if (m.hasProgramDescriptors) PerReadAnnouncedOctetString(m.programDescriptors, r);
  if (m.hasStreamDescriptors) PerReadAnnouncedOctetString(m.streamDescriptors, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH223LogicalChannelParameters(H223LogicalChannelParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeAdaptationLayerType(m.adaptationLayerType, r);
  m.segmentableFlag = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeV76LogicalChannelParameters(V76LogicalChannelParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeV76HDLCParameters(m.hdlcParameters, r);
  DecodeNullChoice(m.suspendResume, r);
  m.uIH = PerReadBit(r);
  DecodeMode(m.mode, r);
  DecodeV75Parameters(m.v75Parameters, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
