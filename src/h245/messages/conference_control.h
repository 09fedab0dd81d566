// Commands and indications about the members of a conference.
#pragma once

#include <stdint.h>

#include "../channels/h2250_parameters.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct SubstituteConferenceIDCommand {
  OctetStringValue conferenceIdentifier;  // 16 octets
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    WalkOctets(v, "conferenceIdentifier", m.conferenceIdentifier);
  }
};

struct ConferenceCommand {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    uint16_t broadcastMyLogicalChannel;
    uint16_t cancelBroadcastMyLogicalChannel;
    TerminalLabel makeTerminalBroadcaster;
    TerminalLabel sendThisSource;
    SubstituteConferenceIDCommand substituteConferenceIDCommand;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("substituteConferenceIDCommand", m.substituteConferenceIDCommand);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Number("broadcastMyLogicalChannel", m.broadcastMyLogicalChannel);
      case 1: return v.Number("cancelBroadcastMyLogicalChannel", m.cancelBroadcastMyLogicalChannel);
      case 2: return v.Record("makeTerminalBroadcaster", m.makeTerminalBroadcaster);
      case 3: return v.Null("cancelMakeTerminalBroadcaster");
      case 4: return v.Record("sendThisSource", m.sendThisSource);
      case 5: return v.Null("cancelSendThisSource");
      case 6: return v.Null("dropConference");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct TerminalYouAreSeeingInSubPictureNumber {
  uint8_t terminalNumber;
  uint8_t subPictureNumber;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("terminalNumber", m.terminalNumber);
    v.Number("subPictureNumber", m.subPictureNumber);
  }
};

struct VideoIndicateCompose {
  uint8_t compositionNumber;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("compositionNumber", m.compositionNumber);
  }
};

struct ConferenceIndication {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    uint8_t sbeNumber;
    TerminalLabel terminalNumberAssign;
    TerminalLabel terminalJoinedConference;
    TerminalLabel terminalLeftConference;
    TerminalLabel terminalYouAreSeeing;
    TerminalLabel floorRequested;
    TerminalYouAreSeeingInSubPictureNumber terminalYouAreSeeingInSubPictureNumber;
    VideoIndicateCompose videoIndicateCompose;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Null("withdrawChairToken");
        case 1: return v.Record("floorRequested", m.floorRequested);
        case 2: return v.Record("terminalYouAreSeeingInSubPictureNumber", m.terminalYouAreSeeingInSubPictureNumber);
        case 3: return v.Record("videoIndicateCompose", m.videoIndicateCompose);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Number("sbeNumber", m.sbeNumber);
      case 1: return v.Record("terminalNumberAssign", m.terminalNumberAssign);
      case 2: return v.Record("terminalJoinedConference", m.terminalJoinedConference);
      case 3: return v.Record("terminalLeftConference", m.terminalLeftConference);
      case 4: return v.Null("seenByAtLeastOneOther");
      case 5: return v.Null("cancelSeenByAtLeastOneOther");
      case 6: return v.Null("seenByAll");
      case 7: return v.Null("cancelSeenByAll");
      case 8: return v.Record("terminalYouAreSeeing", m.terminalYouAreSeeing);
      case 9: return v.Null("requestForFloor");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
