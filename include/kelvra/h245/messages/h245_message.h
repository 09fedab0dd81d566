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

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

// The CHOICE of each class. Extension alternatives reuse the tags from 0, so check `isExtension` before
// `choiceTag`. For a multilink alternative only the tag is kept.

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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, NonStandardMessage(kRequest));
    KELVRA_ALTERNATIVE(masterSlaveDetermination, DefinedType());
    KELVRA_ALTERNATIVE(terminalCapabilitySet, DefinedType());
    KELVRA_ALTERNATIVE(openLogicalChannel, DefinedType());
    KELVRA_ALTERNATIVE(closeLogicalChannel, DefinedType());
    KELVRA_ALTERNATIVE(requestChannelClose, DefinedType());
    KELVRA_ALTERNATIVE(multiplexEntrySend, DefinedType());
    KELVRA_ALTERNATIVE(requestMultiplexEntry, DefinedType());
    KELVRA_ALTERNATIVE(requestMode, DefinedType());
    KELVRA_ALTERNATIVE(roundTripDelayRequest, DefinedType());
    KELVRA_ALTERNATIVE(maintenanceLoopRequest, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(communicationModeRequest, DefinedType());
    KELVRA_ALTERNATIVE(conferenceRequest, DefinedType());
    KELVRA_NULL(multilinkRequest);
    KELVRA_ALTERNATIVE(logicalChannelRateRequest, DefinedType());
    KELVRA_ALTERNATIVE(genericRequest, DefinedType());
  KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, NonStandardMessage(kResponse));
    KELVRA_ALTERNATIVE(masterSlaveDeterminationAck, DefinedType());
    KELVRA_ALTERNATIVE(masterSlaveDeterminationReject, DefinedType());
    KELVRA_ALTERNATIVE(terminalCapabilitySetAck, DefinedType());
    KELVRA_ALTERNATIVE(terminalCapabilitySetReject, DefinedType());
    KELVRA_ALTERNATIVE(openLogicalChannelAck, DefinedType());
    KELVRA_ALTERNATIVE(openLogicalChannelReject, DefinedType());
    KELVRA_ALTERNATIVE(closeLogicalChannelAck, DefinedType());
    KELVRA_ALTERNATIVE(requestChannelCloseAck, DefinedType());
    KELVRA_ALTERNATIVE(requestChannelCloseReject, DefinedType());
    KELVRA_ALTERNATIVE(multiplexEntrySendAck, DefinedType());
    KELVRA_ALTERNATIVE(multiplexEntrySendReject, DefinedType());
    KELVRA_ALTERNATIVE(requestMultiplexEntryAck, DefinedType());
    KELVRA_ALTERNATIVE(requestMultiplexEntryReject, DefinedType());
    KELVRA_ALTERNATIVE(requestModeAck, DefinedType());
    KELVRA_ALTERNATIVE(requestModeReject, DefinedType());
    KELVRA_ALTERNATIVE(roundTripDelayResponse, DefinedType());
    KELVRA_ALTERNATIVE(maintenanceLoopAck, DefinedType());
    KELVRA_ALTERNATIVE(maintenanceLoopReject, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(communicationModeResponse, DefinedType());
    KELVRA_ALTERNATIVE(conferenceResponse, DefinedType());
    KELVRA_NULL(multilinkResponse);
    KELVRA_ALTERNATIVE(logicalChannelRateAcknowledge, DefinedType());
    KELVRA_ALTERNATIVE(logicalChannelRateReject, DefinedType());
    KELVRA_ALTERNATIVE(genericResponse, DefinedType());
  KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, NonStandardMessage(kCommand));
    KELVRA_ALTERNATIVE(maintenanceLoopOffCommand, DefinedType());
    KELVRA_ALTERNATIVE(sendTerminalCapabilitySet, DefinedType());
    KELVRA_ALTERNATIVE(encryptionCommand, DefinedType());
    KELVRA_ALTERNATIVE(flowControlCommand, DefinedType());
    KELVRA_ALTERNATIVE(endSessionCommand, DefinedType());
    KELVRA_ALTERNATIVE(miscellaneousCommand, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(communicationModeCommand, DefinedType());
    KELVRA_ALTERNATIVE(conferenceCommand, DefinedType());
    KELVRA_ALTERNATIVE(h223MultiplexReconfiguration, DefinedType());
    KELVRA_ALTERNATIVE(newATMVCCommand, DefinedType());
    KELVRA_NULL(mobileMultilinkReconfigurationCommand);
    KELVRA_ALTERNATIVE(genericCommand, DefinedType());
  KELVRA_END
};

// No extension marker, and never an indication.
struct FunctionNotUnderstood {
  uint8_t choiceTag;  // MessageClass
  union {
    RequestMessage request;
    ResponseMessage response;
    CommandMessage command;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(request, DefinedType());
    KELVRA_ALTERNATIVE(response, DefinedType());
    KELVRA_ALTERNATIVE(command, DefinedType());
  KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, NonStandardMessage(kIndication));
    KELVRA_ALTERNATIVE(functionNotUnderstood, DefinedType());
    KELVRA_ALTERNATIVE(masterSlaveDeterminationRelease, DefinedType());
    KELVRA_ALTERNATIVE(terminalCapabilitySetRelease, DefinedType());
    KELVRA_ALTERNATIVE(openLogicalChannelConfirm, DefinedType());
    KELVRA_ALTERNATIVE(requestChannelCloseRelease, DefinedType());
    KELVRA_ALTERNATIVE(multiplexEntrySendRelease, DefinedType());
    KELVRA_ALTERNATIVE(requestMultiplexEntryRelease, DefinedType());
    KELVRA_ALTERNATIVE(requestModeRelease, DefinedType());
    KELVRA_ALTERNATIVE(miscellaneousIndication, DefinedType());
    KELVRA_ALTERNATIVE(jitterIndication, DefinedType());
    KELVRA_ALTERNATIVE(h223SkewIndication, InlineType());
    KELVRA_ALTERNATIVE(newATMVCIndication, DefinedType());
    KELVRA_ALTERNATIVE(userInput, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(h2250MaximumSkewIndication, InlineType());
    KELVRA_ALTERNATIVE(mcLocationIndication, DefinedType());
    KELVRA_ALTERNATIVE(conferenceIndication, DefinedType());
    KELVRA_ALTERNATIVE(vendorIdentification, DefinedType());
    KELVRA_ALTERNATIVE(functionNotSupported, DefinedType());
    KELVRA_NULL(multilinkIndication);
    KELVRA_ALTERNATIVE(logicalChannelRateRelease, DefinedType());
    KELVRA_ALTERNATIVE(flowControlIndication, DefinedType());
    KELVRA_NULL(mobileMultilinkReconfigurationIndication);
    KELVRA_ALTERNATIVE(genericIndication, DefinedType());
  KELVRA_END
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

  static constexpr bool kExtensionIndexIsNotKept = true;
  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(request, DefinedType());
    KELVRA_ALTERNATIVE(response, DefinedType());
    KELVRA_ALTERNATIVE(command, DefinedType());
    KELVRA_ALTERNATIVE(indication, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
