#include "h245/capabilities/audio_capability_decode.h"
#include "h245/capabilities/data_application_decode.h"
#include "h245/capabilities/video_capability_decode.h"
#include "h245/channels/data_type_decode.h"
#include "h245/channels/h2250_parameters_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/common/transport_address_decode.h"
#include "h245/decode.h"
#include "h245/messages/communication_mode_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeEntryDataType(CommunicationModeTableEntry::DataType& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeVideoCapability(m.videoData, r);
    case 1: return DecodeAudioCapability(m.audioData, r);
    case 2: return DecodeDataApplicationCapability(m.data, r);
    default: return;
  }
}

void DecodeCommunicationModeTableEntry(CommunicationModeTableEntry& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 8);
  m.isExtended = flags.Next();
  m.hasNonStandard = flags.Next();
  m.hasAssociatedSessionID = flags.Next();
  m.hasTerminalLabel = flags.Next();
  m.hasMediaChannel = flags.Next();
  m.hasMediaGuaranteedDelivery = flags.Next();
  m.hasMediaControlChannel = flags.Next();
  m.hasMediaControlGuaranteedDelivery = flags.Next();
  if (m.hasNonStandard) KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.nonStandard), r, DecodeNonStandardParameter));
  m.sessionID = PerReadNumber<uint8_t>(r, 1, 255);
  if (m.hasAssociatedSessionID) m.associatedSessionID = PerReadNumber<uint8_t>(r, 1, 255);
  if (m.hasTerminalLabel) DecodeTerminalLabel(m.terminalLabel, r);
  PerReadSizedBMPString(m.sessionDescription, r, 1, 128);
  DecodeEntryDataType(m.dataType, r);
  if (m.hasMediaChannel) DecodeTransportAddress(m.mediaChannel, r);
  if (m.hasMediaGuaranteedDelivery) m.mediaGuaranteedDelivery = PerReadBit(r);
  if (m.hasMediaControlChannel) DecodeTransportAddress(m.mediaControlChannel, r);
  if (m.hasMediaControlGuaranteedDelivery) m.mediaControlGuaranteedDelivery = PerReadBit(r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 3);
  m.hasRedundancyEncoding = known.Next();
  m.hasSessionDependency = known.Next();
  m.hasDestination = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasRedundancyEncoding) DecodeOpen(m.redundancyEncoding, r, DecodeRedundancyEncoding);
  if (m.hasSessionDependency) m.sessionDependency = PerReadOpenNumber<uint8_t>(r, 1, 255);
  if (m.hasDestination) DecodeOpen(m.destination, r, DecodeTerminalLabel);
  PerSkipOpenTypes(r, unknown);
}

}  // namespace

void DecodeCommunicationModeCommand(CommunicationModeCommand& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_OR_STOP(
      DecodeSizedSequenceOf(KELVRA_LIST(m.communicationModeTable), r, 1, 256, DecodeCommunicationModeTableEntry));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeCommunicationModeResponse(CommunicationModeResponse& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 1);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0:
      KELVRA_OR_STOP(
          DecodeSizedSequenceOf(ListOf(m.communicationModeTable), r, 1, 256, DecodeCommunicationModeTableEntry));
      return;
    default: return;
  }
}

}  // namespace kelvra::h245
