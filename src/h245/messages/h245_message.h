// MultimediaSystemControlMessage, the outermost record of the H.245 family.
#pragma once

#include "../capabilities/terminal_capability_set.h"
#include "../channels/open_logical_channel.h"

namespace kelvra::h245 {

// What a class record holds; the tag of H245MessageRecord.
enum MessageClass : uint8_t { kRequest = 0, kResponse = 1, kCommand = 2, kIndication = 3 };

struct RequestMessageNames {
  static constexpr MessageClass kClass = kRequest;
  static constexpr uint32_t kRoots = 11;
  static constexpr const char* kAlternatives[] = {
      "nonStandard",         "masterSlaveDetermination", "terminalCapabilitySet",     "openLogicalChannel",
      "closeLogicalChannel", "requestChannelClose",      "multiplexEntrySend",        "requestMultiplexEntry",
      "requestMode",         "roundTripDelayRequest",    "maintenanceLoopRequest",    "communicationModeRequest",
      "conferenceRequest",   "multilinkRequest",         "logicalChannelRateRequest", "genericRequest"};
};

struct ResponseMessageNames {
  static constexpr MessageClass kClass = kResponse;
  static constexpr uint32_t kRoots = 19;
  static constexpr const char* kAlternatives[] = {"nonStandard",
                                                  "masterSlaveDeterminationAck",
                                                  "masterSlaveDeterminationReject",
                                                  "terminalCapabilitySetAck",
                                                  "terminalCapabilitySetReject",
                                                  "openLogicalChannelAck",
                                                  "openLogicalChannelReject",
                                                  "closeLogicalChannelAck",
                                                  "requestChannelCloseAck",
                                                  "requestChannelCloseReject",
                                                  "multiplexEntrySendAck",
                                                  "multiplexEntrySendReject",
                                                  "requestMultiplexEntryAck",
                                                  "requestMultiplexEntryReject",
                                                  "requestModeAck",
                                                  "requestModeReject",
                                                  "roundTripDelayResponse",
                                                  "maintenanceLoopAck",
                                                  "maintenanceLoopReject",
                                                  "communicationModeResponse",
                                                  "conferenceResponse",
                                                  "multilinkResponse",
                                                  "logicalChannelRateAcknowledge",
                                                  "logicalChannelRateReject",
                                                  "genericResponse"};
};

struct CommandMessageNames {
  static constexpr MessageClass kClass = kCommand;
  static constexpr uint32_t kRoots = 7;
  static constexpr const char* kAlternatives[] = {"nonStandard",
                                                  "maintenanceLoopOffCommand",
                                                  "sendTerminalCapabilitySet",
                                                  "encryptionCommand",
                                                  "flowControlCommand",
                                                  "endSessionCommand",
                                                  "miscellaneousCommand",
                                                  "communicationModeCommand",
                                                  "conferenceCommand",
                                                  "h223MultiplexReconfiguration",
                                                  "newATMVCCommand",
                                                  "mobileMultilinkReconfigurationCommand",
                                                  "genericCommand"};
};

struct IndicationMessageNames {
  static constexpr MessageClass kClass = kIndication;
  static constexpr uint32_t kRoots = 14;
  static constexpr const char* kAlternatives[] = {"nonStandard",
                                                  "functionNotUnderstood",
                                                  "masterSlaveDeterminationRelease",
                                                  "terminalCapabilitySetRelease",
                                                  "openLogicalChannelConfirm",
                                                  "requestChannelCloseRelease",
                                                  "multiplexEntrySendRelease",
                                                  "requestMultiplexEntryRelease",
                                                  "requestModeRelease",
                                                  "miscellaneousIndication",
                                                  "jitterIndication",
                                                  "h223SkewIndication",
                                                  "newATMVCIndication",
                                                  "userInput",
                                                  "h2250MaximumSkewIndication",
                                                  "mcLocationIndication",
                                                  "conferenceIndication",
                                                  "vendorIdentification",
                                                  "functionNotSupported",
                                                  "multilinkIndication",
                                                  "logicalChannelRateRelease",
                                                  "flowControlIndication",
                                                  "mobileMultilinkReconfigurationIndication",
                                                  "genericIndication"};
};

inline constexpr uint32_t kTerminalCapabilitySetTag = 2;        // root alternative of RequestMessage
inline constexpr uint32_t kTerminalCapabilitySetRejectTag = 4;  // root alternative of ResponseMessage
inline constexpr uint32_t kOpenLogicalChannelTag = 3;           // root alternative of RequestMessage
inline constexpr uint32_t kOpenLogicalChannelAckTag = 5;        // root alternative of ResponseMessage

#pragma pack(push, 1)

// The CHOICE of one class. Extension alternatives reuse the tags from 0, so look at `isExtension`
// before `choiceTag`. An alternative beyond those of the union is passed over: only its tag is kept.
template <class Names>
struct H245ClassRecord {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    TerminalCapabilitySet terminalCapabilitySet;              // of a request
    TerminalCapabilitySetReject terminalCapabilitySetReject;  // of a response
    OpenLogicalChannel openLogicalChannel;                    // of a request
    OpenLogicalChannelAck openLogicalChannelAck;              // of a response
    uint8_t reserved[1851];
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension == 0 && Names::kClass == kRequest && m.choiceTag == kOpenLogicalChannelTag) {
      return v.Record("openLogicalChannel", m.openLogicalChannel);
    }
    if (m.isExtension == 0 && Names::kClass == kResponse && m.choiceTag == kOpenLogicalChannelAckTag) {
      return v.Record("openLogicalChannelAck", m.openLogicalChannelAck);
    }
    if (m.isExtension == 0 && Names::kClass == kRequest && m.choiceTag == kTerminalCapabilitySetTag) {
      return v.Record("terminalCapabilitySet", m.terminalCapabilitySet);
    }
    if (m.isExtension == 0 && Names::kClass == kResponse && m.choiceTag == kTerminalCapabilitySetRejectTag) {
      return v.Record("terminalCapabilitySetReject", m.terminalCapabilitySetReject);
    }
    WalkNullChoice<Names>(v, m.isExtension, m.choiceTag);
  }
};

struct H245MessageRecord {
  uint32_t isExtension;
  uint8_t choiceTag;  // MessageClass
  union {
    H245ClassRecord<RequestMessageNames> request;
    H245ClassRecord<ResponseMessageNames> response;
    H245ClassRecord<CommandMessageNames> command;
    H245ClassRecord<IndicationMessageNames> indication;
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
