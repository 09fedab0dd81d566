#include "h245/channels/h2250_parameters_decode.h"
#include "h245/decode.h"
#include "h245/messages/conference_control_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeSubstituteConferenceIDCommand(SubstituteConferenceIDCommand& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  PerReadOctets(m.conferenceIdentifier, r, 16);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeTerminalYouAreSeeingInSubPictureNumber(TerminalYouAreSeeingInSubPictureNumber& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.terminalNumber = PerReadNumber<uint8_t>(r, 0, 192);
  m.subPictureNumber = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeVideoIndicateCompose(VideoIndicateCompose& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.compositionNumber = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeConferenceCommand(ConferenceCommand& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 7);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.substituteConferenceIDCommand, r, DecodeSubstituteConferenceIDCommand);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: m.broadcastMyLogicalChannel = PerReadNumber<uint16_t>(r, 1, 65535); return;
    case 1: m.cancelBroadcastMyLogicalChannel = PerReadNumber<uint16_t>(r, 1, 65535); return;
    case 2: return DecodeTerminalLabel(m.makeTerminalBroadcaster, r);
    case 4: return DecodeTerminalLabel(m.sendThisSource, r);
    default: return;
  }
}

void DecodeConferenceIndication(ConferenceIndication& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 10);
  if (m.isExtension) {
    switch (index) {
      case 1: return DecodeOpen(m.floorRequested, r, DecodeTerminalLabel);
      case 2:
        return DecodeOpen(m.terminalYouAreSeeingInSubPictureNumber, r, DecodeTerminalYouAreSeeingInSubPictureNumber);
      case 3: return DecodeOpen(m.videoIndicateCompose, r, DecodeVideoIndicateCompose);
      default: return PerPassOverAlternative(r, index, 4);
    }
  }
  switch (index) {
    case 0: m.sbeNumber = PerReadNumber<uint8_t>(r, 0, 9); return;
    case 1: return DecodeTerminalLabel(m.terminalNumberAssign, r);
    case 2: return DecodeTerminalLabel(m.terminalJoinedConference, r);
    case 3: return DecodeTerminalLabel(m.terminalLeftConference, r);
    case 8: return DecodeTerminalLabel(m.terminalYouAreSeeing, r);
    default: return;
  }
}

}  // namespace kelvra::h245
