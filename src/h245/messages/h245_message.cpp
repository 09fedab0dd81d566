#include "h245/capabilities/terminal_capability_set_decode.h"
#include "h245/channels/open_logical_channel_decode.h"
#include "h245/decode.h"
#include "h245/messages/close_logical_channel_decode.h"
#include "h245/messages/communication_mode_decode.h"
#include "h245/messages/conference_control_decode.h"
#include "h245/messages/conference_request_decode.h"
#include "h245/messages/conference_response_decode.h"
#include "h245/messages/encryption_command_decode.h"
#include "h245/messages/end_session_command_decode.h"
#include "h245/messages/flow_control_decode.h"
#include "h245/messages/generic_message_decode.h"
#include "h245/messages/h223_multiplex_reconfiguration_decode.h"
#include "h245/messages/h245_message_decode.h"
#include "h245/messages/indications_decode.h"
#include "h245/messages/logical_channel_rate_decode.h"
#include "h245/messages/maintenance_loop_decode.h"
#include "h245/messages/master_slave_determination_decode.h"
#include "h245/messages/miscellaneous_decode.h"
#include "h245/messages/multiplex_entry_decode.h"
#include "h245/messages/new_atm_vc_decode.h"
#include "h245/messages/non_standard_message_decode.h"
#include "h245/messages/send_terminal_capability_set_decode.h"
#include "h245/messages/shared_bodies_decode.h"
#include "h245/messages/user_input_decode.h"
#include "h245/modes/request_mode_decode.h"

namespace kelvra::h245 {
namespace {

// The multilink alternatives of the classes are passed over like NULLs.

void DecodeNonStandard(H245NonStandardMessageRecord& m, PerReader& r, MessageClass messageClass) {
  m.messageClass = messageClass;
  DecodeNonStandardMessage(m, r);
}

void DecodeRequestMessage(RequestMessage& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 11);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.communicationModeRequest, r, DecodeEmptyBody);
      case 1: return DecodeOpen(m.conferenceRequest, r, DecodeConferenceRequest);
      case 3: return DecodeOpen(m.logicalChannelRateRequest, r, DecodeLogicalChannelRate);
      case 4: return DecodeOpen(m.genericRequest, r, DecodeGenericMessage);
      default: return PerPassOverAlternative(r, index, 5);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandard(m.nonStandard, r, kRequest);
    case 1: return DecodeMasterSlaveDetermination(m.masterSlaveDetermination, r);
    case 2: return DecodeTerminalCapabilitySet(m.terminalCapabilitySet, r);
    case 3: return DecodeOpenLogicalChannel(m.openLogicalChannel, r);
    case 4: return DecodeCloseLogicalChannel(m.closeLogicalChannel, r);
    case 5: return DecodeRequestChannelClose(m.requestChannelClose, r);
    case 6: return DecodeMultiplexEntrySend(m.multiplexEntrySend, r);
    case 7: return DecodeRequestMultiplexEntry(m.requestMultiplexEntry, r);
    case 8: return DecodeRequestMode(m.requestMode, r);
    case 9: return DecodeSequenceNumberBody(m.roundTripDelayRequest, r);
    case 10: return DecodeMaintenanceLoop(m.maintenanceLoopRequest, r);
    default: return;
  }
}

void DecodeResponseMessage(ResponseMessage& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 19);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.communicationModeResponse, r, DecodeCommunicationModeResponse);
      case 1: return DecodeOpen(m.conferenceResponse, r, DecodeConferenceResponse);
      case 3: return DecodeOpen(m.logicalChannelRateAcknowledge, r, DecodeLogicalChannelRate);
      case 4: return DecodeOpen(m.logicalChannelRateReject, r, DecodeLogicalChannelRateReject);
      case 5: return DecodeOpen(m.genericResponse, r, DecodeGenericMessage);
      default: return PerPassOverAlternative(r, index, 6);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandard(m.nonStandard, r, kResponse);
    case 1: return DecodeMasterSlaveDeterminationAck(m.masterSlaveDeterminationAck, r);
    case 2: return DecodeMasterSlaveDeterminationReject(m.masterSlaveDeterminationReject, r);
    case 3: return DecodeSequenceNumberBody(m.terminalCapabilitySetAck, r);
    case 4: return DecodeTerminalCapabilitySetReject(m.terminalCapabilitySetReject, r);
    case 5: return DecodeOpenLogicalChannelAck(m.openLogicalChannelAck, r);
    case 6: return DecodeOpenLogicalChannelReject(m.openLogicalChannelReject, r);
    case 7: return DecodeForwardLogicalChannelNumberBody(m.closeLogicalChannelAck, r);
    case 8: return DecodeForwardLogicalChannelNumberBody(m.requestChannelCloseAck, r);
    case 9: return DecodeRequestChannelCloseReject(m.requestChannelCloseReject, r);
    case 10: return DecodeMultiplexEntrySendAck(m.multiplexEntrySendAck, r);
    case 11: return DecodeMultiplexEntrySendReject(m.multiplexEntrySendReject, r);
    case 12: return DecodeRequestMultiplexEntry(m.requestMultiplexEntryAck, r);
    case 13: return DecodeRequestMultiplexEntryReject(m.requestMultiplexEntryReject, r);
    case 14: return DecodeRequestModeAck(m.requestModeAck, r);
    case 15: return DecodeRequestModeReject(m.requestModeReject, r);
    case 16: return DecodeSequenceNumberBody(m.roundTripDelayResponse, r);
    case 17: return DecodeMaintenanceLoop(m.maintenanceLoopAck, r);
    case 18: return DecodeMaintenanceLoopReject(m.maintenanceLoopReject, r);
    default: return;
  }
}

void DecodeCommandMessage(CommandMessage& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 7);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.communicationModeCommand, r, DecodeCommunicationModeCommand);
      case 1: return DecodeOpen(m.conferenceCommand, r, DecodeConferenceCommand);
      case 2: return DecodeOpen(m.h223MultiplexReconfiguration, r, DecodeH223MultiplexReconfiguration);
      case 3: return DecodeOpen(m.newATMVCCommand, r, DecodeNewATMVCCommand);
      case 5: return DecodeOpen(m.genericCommand, r, DecodeGenericMessage);
      default: return PerPassOverAlternative(r, index, 6);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandard(m.nonStandard, r, kCommand);
    case 1: return DecodeEmptyBody(m.maintenanceLoopOffCommand, r);
    case 2: return DecodeSendTerminalCapabilitySet(m.sendTerminalCapabilitySet, r);
    case 3: return DecodeEncryptionCommand(m.encryptionCommand, r);
    case 4: return DecodeFlowControl(m.flowControlCommand, r);
    case 5: return DecodeEndSessionCommand(m.endSessionCommand, r);
    case 6: return DecodeMiscellaneousCommand(m.miscellaneousCommand, r);
    default: return;
  }
}

void DecodeFunctionNotUnderstood(FunctionNotUnderstood& m, PerReader& r) {
  const uint32_t index = ReadRootChoice(m, r, 3);
  switch (index) {
    case kRequest: return DecodeRequestMessage(m.request, r);
    case kResponse: return DecodeResponseMessage(m.response, r);
    case kCommand: return DecodeCommandMessage(m.command, r);
    default: return;
  }
}

// The index is read with one value more than there are alternatives, in the same 4 bits.
void DecodeIndicationMessage(IndicationMessage& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 15);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.h2250MaximumSkewIndication, r, DecodeSkewIndication);
      case 1: return DecodeOpen(m.mcLocationIndication, r, DecodeMCLocationIndication);
      case 2: return DecodeOpen(m.conferenceIndication, r, DecodeConferenceIndication);
      case 3: return DecodeOpen(m.vendorIdentification, r, DecodeVendorIdentification);
      case 4: return DecodeOpen(m.functionNotSupported, r, DecodeFunctionNotSupported);
      case 6: return DecodeOpen(m.logicalChannelRateRelease, r, DecodeEmptyBody);
      case 7: return DecodeOpen(m.flowControlIndication, r, DecodeFlowControl);
      case 9: return DecodeOpen(m.genericIndication, r, DecodeGenericMessage);
      default: return PerPassOverAlternative(r, index, 10);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandard(m.nonStandard, r, kIndication);
    case 1: return DecodeFunctionNotUnderstood(m.functionNotUnderstood, r);
    case 2: return DecodeEmptyBody(m.masterSlaveDeterminationRelease, r);
    case 3: return DecodeEmptyBody(m.terminalCapabilitySetRelease, r);
    case 4: return DecodeForwardLogicalChannelNumberBody(m.openLogicalChannelConfirm, r);
    case 5: return DecodeForwardLogicalChannelNumberBody(m.requestChannelCloseRelease, r);
    case 6: return DecodeMultiplexEntrySendRelease(m.multiplexEntrySendRelease, r);
    case 7: return DecodeRequestMultiplexEntry(m.requestMultiplexEntryRelease, r);
    case 8: return DecodeEmptyBody(m.requestModeRelease, r);
    case 9: return DecodeMiscellaneousIndication(m.miscellaneousIndication, r);
    case 10: return DecodeJitterIndication(m.jitterIndication, r);
    case 11: return DecodeSkewIndication(m.h223SkewIndication, r);
    case 12: return DecodeNewATMVCIndication(m.newATMVCIndication, r);
    case 13: return DecodeUserInputIndication(m.userInput, r);
    default: return;
  }
}

}  // namespace

void DecodeMultimediaSystemControlMessage(H245MessageRecord& m, PerReader& r) {
  m.isExtension = PerReadBit(r);
  if (m.isExtension) {
    PerReadNormallySmall(r);  // the index is not kept
    return PerSkipOpenTypes(r, 1);
  }
  m.choiceTag = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, 4));
  switch (m.choiceTag) {
    case kRequest: return DecodeRequestMessage(m.request, r);
    case kResponse: return DecodeResponseMessage(m.response, r);
    case kCommand: return DecodeCommandMessage(m.command, r);
    default: return DecodeIndicationMessage(m.indication, r);
  }
}

}  // namespace kelvra::h245
