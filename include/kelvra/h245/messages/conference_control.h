// Commands and indications about the members of a conference.
#pragma once

#include "../channels/h2250_parameters.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct SubstituteConferenceIDCommand {
  OctetStringValue conferenceIdentifier;  // 16 octets
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(conferenceIdentifier, OctetString(16));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(broadcastMyLogicalChannel, Integer(1, 65535));
    KELVRA_ALTERNATIVE(cancelBroadcastMyLogicalChannel, Integer(1, 65535));
    KELVRA_ALTERNATIVE(makeTerminalBroadcaster, DefinedType());
    KELVRA_NULL(cancelMakeTerminalBroadcaster);
    KELVRA_ALTERNATIVE(sendThisSource, DefinedType());
    KELVRA_NULL(cancelSendThisSource);
    KELVRA_NULL(dropConference);
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(substituteConferenceIDCommand, DefinedType());
  KELVRA_END
};

struct TerminalYouAreSeeingInSubPictureNumber {
  uint8_t terminalNumber;
  uint8_t subPictureNumber;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(terminalNumber, Integer(0, 192));
    KELVRA_MEMBER(subPictureNumber, Integer(0, 255));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct VideoIndicateCompose {
  uint8_t compositionNumber;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(compositionNumber, Integer(0, 255));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(sbeNumber, Integer(0, 9));
    KELVRA_ALTERNATIVE(terminalNumberAssign, DefinedType());
    KELVRA_ALTERNATIVE(terminalJoinedConference, DefinedType());
    KELVRA_ALTERNATIVE(terminalLeftConference, DefinedType());
    KELVRA_NULL(seenByAtLeastOneOther);
    KELVRA_NULL(cancelSeenByAtLeastOneOther);
    KELVRA_NULL(seenByAll);
    KELVRA_NULL(cancelSeenByAll);
    KELVRA_ALTERNATIVE(terminalYouAreSeeing, DefinedType());
    KELVRA_NULL(requestForFloor);
    KELVRA_EXTENSION(isExtension);
    KELVRA_NULL(withdrawChairToken);
    KELVRA_ALTERNATIVE(floorRequested, DefinedType());
    KELVRA_ALTERNATIVE(terminalYouAreSeeingInSubPictureNumber, DefinedType());
    KELVRA_ALTERNATIVE(videoIndicateCompose, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
