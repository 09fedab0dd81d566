// MultimediaSystemControlMessage, the outermost record of the H.245 family.
#pragma once

#include "../capabilities/terminal_capability_set.h"
#include "../channels/open_logical_channel.h"
#include "../modes/request_mode.h"
#include "close_logical_channel.h"
#include "communication_mode.h"
#include "conference_control.h"
#include "conference_request.h"
#include "conference_response.h"
#include "encryption_command.h"
#include "end_session_command.h"
#include "flow_control.h"
#include "generic_message.h"
#include "h223_multiplex_reconfiguration.h"
#include "indications.h"
#include "logical_channel_rate.h"
#include "maintenance_loop.h"
#include "master_slave_determination.h"
#include "miscellaneous.h"
#include "multiplex_entry.h"
#include "new_atm_vc.h"
#include "non_standard_message.h"
#include "send_terminal_capability_set.h"
#include "shared_bodies.h"
#include "user_input.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

// The CHOICE of each class. Extension alternatives reuse the tags from 0, so look at `isExtension` before
// `choiceTag`. Of a multilink alternative only the tag is kept.

struct RequestMessage {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    H245NonStandardMessageRecord nonStandard;
    MasterSlaveDetermination masterSlaveDetermination;
    TerminalCapabilitySet terminalCapabilitySet;
    OpenLogicalChannel openLogicalChannel;
    CloseLogicalChannel closeLogicalChannel;
    RequestChannelClose requestChannelClose;
    MultiplexEntrySend multiplexEntrySend;
    RequestMultiplexEntry requestMultiplexEntry;
    RequestMode requestMode;
    RoundTripDelayRequest roundTripDelayRequest;
    MaintenanceLoopRequest maintenanceLoopRequest;
    CommunicationModeRequest communicationModeRequest;
    ConferenceRequest conferenceRequest;
    LogicalChannelRateRequest logicalChannelRateRequest;
    GenericMessage genericRequest;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("communicationModeRequest", m.communicationModeRequest);
        case 1: return v.Record("conferenceRequest", m.conferenceRequest);
        case 2: return v.Null("multilinkRequest");
        case 3: return v.Record("logicalChannelRateRequest", m.logicalChannelRateRequest);
        case 4: return v.Record("genericRequest", m.genericRequest);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Record("masterSlaveDetermination", m.masterSlaveDetermination);
      case 2: return v.Record("terminalCapabilitySet", m.terminalCapabilitySet);
      case 3: return v.Record("openLogicalChannel", m.openLogicalChannel);
      case 4: return v.Record("closeLogicalChannel", m.closeLogicalChannel);
      case 5: return v.Record("requestChannelClose", m.requestChannelClose);
      case 6: return v.Record("multiplexEntrySend", m.multiplexEntrySend);
      case 7: return v.Record("requestMultiplexEntry", m.requestMultiplexEntry);
      case 8: return v.Record("requestMode", m.requestMode);
      case 9: return v.Record("roundTripDelayRequest", m.roundTripDelayRequest);
      case 10: return v.Record("maintenanceLoopRequest", m.maintenanceLoopRequest);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct ResponseMessage {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    H245NonStandardMessageRecord nonStandard;
    MasterSlaveDeterminationAck masterSlaveDeterminationAck;
    MasterSlaveDeterminationReject masterSlaveDeterminationReject;
    TerminalCapabilitySetAck terminalCapabilitySetAck;
    TerminalCapabilitySetReject terminalCapabilitySetReject;
    OpenLogicalChannelAck openLogicalChannelAck;
    OpenLogicalChannelReject openLogicalChannelReject;
    CloseLogicalChannelAck closeLogicalChannelAck;
    RequestChannelCloseAck requestChannelCloseAck;
    RequestChannelCloseReject requestChannelCloseReject;
    MultiplexEntrySendAck multiplexEntrySendAck;
    MultiplexEntrySendReject multiplexEntrySendReject;
    RequestMultiplexEntryAck requestMultiplexEntryAck;
    RequestMultiplexEntryReject requestMultiplexEntryReject;
    RequestModeAck requestModeAck;
    RequestModeReject requestModeReject;
    RoundTripDelayResponse roundTripDelayResponse;
    MaintenanceLoopAck maintenanceLoopAck;
    MaintenanceLoopReject maintenanceLoopReject;
    CommunicationModeResponse communicationModeResponse;
    ConferenceResponse conferenceResponse;
    LogicalChannelRateAcknowledge logicalChannelRateAcknowledge;
    LogicalChannelRateReject logicalChannelRateReject;
    GenericMessage genericResponse;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("communicationModeResponse", m.communicationModeResponse);
        case 1: return v.Record("conferenceResponse", m.conferenceResponse);
        case 2: return v.Null("multilinkResponse");
        case 3: return v.Record("logicalChannelRateAcknowledge", m.logicalChannelRateAcknowledge);
        case 4: return v.Record("logicalChannelRateReject", m.logicalChannelRateReject);
        case 5: return v.Record("genericResponse", m.genericResponse);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Record("masterSlaveDeterminationAck", m.masterSlaveDeterminationAck);
      case 2: return v.Record("masterSlaveDeterminationReject", m.masterSlaveDeterminationReject);
      case 3: return v.Record("terminalCapabilitySetAck", m.terminalCapabilitySetAck);
      case 4: return v.Record("terminalCapabilitySetReject", m.terminalCapabilitySetReject);
      case 5: return v.Record("openLogicalChannelAck", m.openLogicalChannelAck);
      case 6: return v.Record("openLogicalChannelReject", m.openLogicalChannelReject);
      case 7: return v.Record("closeLogicalChannelAck", m.closeLogicalChannelAck);
      case 8: return v.Record("requestChannelCloseAck", m.requestChannelCloseAck);
      case 9: return v.Record("requestChannelCloseReject", m.requestChannelCloseReject);
      case 10: return v.Record("multiplexEntrySendAck", m.multiplexEntrySendAck);
      case 11: return v.Record("multiplexEntrySendReject", m.multiplexEntrySendReject);
      case 12: return v.Record("requestMultiplexEntryAck", m.requestMultiplexEntryAck);
      case 13: return v.Record("requestMultiplexEntryReject", m.requestMultiplexEntryReject);
      case 14: return v.Record("requestModeAck", m.requestModeAck);
      case 15: return v.Record("requestModeReject", m.requestModeReject);
      case 16: return v.Record("roundTripDelayResponse", m.roundTripDelayResponse);
      case 17: return v.Record("maintenanceLoopAck", m.maintenanceLoopAck);
      case 18: return v.Record("maintenanceLoopReject", m.maintenanceLoopReject);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct CommandMessage {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    H245NonStandardMessageRecord nonStandard;
    MaintenanceLoopOffCommand maintenanceLoopOffCommand;
    SendTerminalCapabilitySet sendTerminalCapabilitySet;
    EncryptionCommand encryptionCommand;
    FlowControlCommand flowControlCommand;
    EndSessionCommand endSessionCommand;
    MiscellaneousCommand miscellaneousCommand;
    CommunicationModeCommand communicationModeCommand;
    ConferenceCommand conferenceCommand;
    H223MultiplexReconfiguration h223MultiplexReconfiguration;
    NewATMVCCommand newATMVCCommand;
    GenericMessage genericCommand;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("communicationModeCommand", m.communicationModeCommand);
        case 1: return v.Record("conferenceCommand", m.conferenceCommand);
        case 2: return v.Record("h223MultiplexReconfiguration", m.h223MultiplexReconfiguration);
        case 3: return v.Record("newATMVCCommand", m.newATMVCCommand);
        case 4: return v.Null("mobileMultilinkReconfigurationCommand");
        case 5: return v.Record("genericCommand", m.genericCommand);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Record("maintenanceLoopOffCommand", m.maintenanceLoopOffCommand);
      case 2: return v.Record("sendTerminalCapabilitySet", m.sendTerminalCapabilitySet);
      case 3: return v.Record("encryptionCommand", m.encryptionCommand);
      case 4: return v.Record("flowControlCommand", m.flowControlCommand);
      case 5: return v.Record("endSessionCommand", m.endSessionCommand);
      case 6: return v.Record("miscellaneousCommand", m.miscellaneousCommand);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

// No extension marker, and never an indication.
struct FunctionNotUnderstood {
  uint8_t choiceTag;  // MessageClass
  union {
    RequestMessage request;
    ResponseMessage response;
    CommandMessage command;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    switch (m.choiceTag) {
      case kRequest: return v.Record("request", m.request);
      case kResponse: return v.Record("response", m.response);
      case kCommand: return v.Record("command", m.command);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct IndicationMessage {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    H245NonStandardMessageRecord nonStandard;
    FunctionNotUnderstood functionNotUnderstood;
    MasterSlaveDeterminationRelease masterSlaveDeterminationRelease;
    TerminalCapabilitySetRelease terminalCapabilitySetRelease;
    OpenLogicalChannelConfirm openLogicalChannelConfirm;
    RequestChannelCloseRelease requestChannelCloseRelease;
    MultiplexEntrySendRelease multiplexEntrySendRelease;
    RequestMultiplexEntryRelease requestMultiplexEntryRelease;
    RequestModeRelease requestModeRelease;
    MiscellaneousIndication miscellaneousIndication;
    JitterIndication jitterIndication;
    H223SkewIndication h223SkewIndication;
    NewATMVCIndication newATMVCIndication;
    UserInputIndication userInput;
    H2250MaximumSkewIndication h2250MaximumSkewIndication;
    MCLocationIndication mcLocationIndication;
    ConferenceIndication conferenceIndication;
    VendorIdentification vendorIdentification;
    FunctionNotSupported functionNotSupported;
    LogicalChannelRateRelease logicalChannelRateRelease;
    FlowControlIndication flowControlIndication;
    GenericMessage genericIndication;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("h2250MaximumSkewIndication", m.h2250MaximumSkewIndication);
        case 1: return v.Record("mcLocationIndication", m.mcLocationIndication);
        case 2: return v.Record("conferenceIndication", m.conferenceIndication);
        case 3: return v.Record("vendorIdentification", m.vendorIdentification);
        case 4: return v.Record("functionNotSupported", m.functionNotSupported);
        case 5: return v.Null("multilinkIndication");
        case 6: return v.Record("logicalChannelRateRelease", m.logicalChannelRateRelease);
        case 7: return v.Record("flowControlIndication", m.flowControlIndication);
        case 8: return v.Null("mobileMultilinkReconfigurationIndication");
        case 9: return v.Record("genericIndication", m.genericIndication);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Record("functionNotUnderstood", m.functionNotUnderstood);
      case 2: return v.Record("masterSlaveDeterminationRelease", m.masterSlaveDeterminationRelease);
      case 3: return v.Record("terminalCapabilitySetRelease", m.terminalCapabilitySetRelease);
      case 4: return v.Record("openLogicalChannelConfirm", m.openLogicalChannelConfirm);
      case 5: return v.Record("requestChannelCloseRelease", m.requestChannelCloseRelease);
      case 6: return v.Record("multiplexEntrySendRelease", m.multiplexEntrySendRelease);
      case 7: return v.Record("requestMultiplexEntryRelease", m.requestMultiplexEntryRelease);
      case 8: return v.Record("requestModeRelease", m.requestModeRelease);
      case 9: return v.Record("miscellaneousIndication", m.miscellaneousIndication);
      case 10: return v.Record("jitterIndication", m.jitterIndication);
      case 11: return v.Record("h223SkewIndication", m.h223SkewIndication);
      case 12: return v.Record("newATMVCIndication", m.newATMVCIndication);
      case 13: return v.Record("userInput", m.userInput);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct H245MessageRecord {
  uint32_t isExtension;
  uint8_t choiceTag;  // MessageClass
  union {
    RequestMessage request;
    ResponseMessage response;
    CommandMessage command;
    IndicationMessage indication;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case kRequest: return v.Record("request", m.request);
      case kResponse: return v.Record("response", m.response);
      case kCommand: return v.Record("command", m.command);
      case kIndication: return v.Record("indication", m.indication);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
