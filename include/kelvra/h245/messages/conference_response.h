// Answers to requests about the members of a conference.
#pragma once

#include "../channels/h2250_parameters.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

// Also the layout of the ConferenceResponse alternatives that give a terminal's identifier.
struct TerminalInformation {
  TerminalLabel terminalLabel;
  OctetStringValue terminalID;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(terminalLabel, DefinedType());
    KELVRA_MEMBER(terminalID, OctetString(1, 128));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RequestAllTerminalIDsResponse {
  uint8_t terminalInformationCount;
  TerminalInformation* terminalInformation;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(terminalInformation, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RemoteMCResponse {
  KELVRA_NULL_CHOICE(NullChoice, Reject, 2, "unspecified", "functionNotSupported");

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    Reject reject;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(accept);
    KELVRA_ALTERNATIVE(reject, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct ConferenceResponse {
  struct ConferenceIDResponse {
    TerminalLabel terminalLabel;
    OctetStringValue conferenceID;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(terminalLabel, DefinedType());
      KELVRA_MEMBER(conferenceID, OctetString(1, 32));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct PasswordResponse {
    TerminalLabel terminalLabel;
    OctetStringValue password;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(terminalLabel, DefinedType());
      KELVRA_MEMBER(password, OctetString(1, 32));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct TerminalListResponse {
    uint16_t count;
    TerminalLabel* elements;
  };

  KELVRA_NULL_CHOICE(NullChoice, MakeMeChairResponse, 2, "grantedChairToken", "deniedChairToken");

  struct ExtensionAddressResponse {
    OctetStringValue extensionAddress;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(extensionAddress, OctetString(1, 128));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct TerminalCertificateResponse {
    uint32_t hasTerminalLabel;
    TerminalLabel terminalLabel;
    uint32_t hasCertificateResponse;
    OctetStringValue certificateResponse;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasTerminalLabel, terminalLabel, DefinedType());
      KELVRA_OPTIONAL(hasCertificateResponse, certificateResponse, OctetString(1, 65535));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  KELVRA_NULL_CHOICE(NullChoice, BroadcastMyLogicalChannelResponse, 2, "grantedBroadcastMyLogicalChannel",
                     "deniedBroadcastMyLogicalChannel");
  KELVRA_NULL_CHOICE(NullChoice, MakeTerminalBroadcasterResponse, 2, "grantedMakeTerminalBroadcaster",
                     "deniedMakeTerminalBroadcaster");
  KELVRA_NULL_CHOICE(NullChoice, SendThisSourceResponse, 2, "grantedSendThisSource", "deniedSendThisSource");

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    TerminalInformation mCTerminalIDResponse;
    TerminalInformation terminalIDResponse;
    ConferenceIDResponse conferenceIDResponse;
    PasswordResponse passwordResponse;
    TerminalListResponse terminalListResponse;
    MakeMeChairResponse makeMeChairResponse;
    ExtensionAddressResponse extensionAddressResponse;
    TerminalInformation chairTokenOwnerResponse;
    TerminalCertificateResponse terminalCertificateResponse;
    BroadcastMyLogicalChannelResponse broadcastMyLogicalChannelResponse;
    MakeTerminalBroadcasterResponse makeTerminalBroadcasterResponse;
    SendThisSourceResponse sendThisSourceResponse;
    RequestAllTerminalIDsResponse requestAllTerminalIDsResponse;
    RemoteMCResponse remoteMCResponse;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(mCTerminalIDResponse, DefinedType());
    KELVRA_ALTERNATIVE(terminalIDResponse, DefinedType());
    KELVRA_ALTERNATIVE(conferenceIDResponse, InlineType());
    KELVRA_ALTERNATIVE(passwordResponse, InlineType());
    KELVRA_ALTERNATIVE(terminalListResponse, SequenceOf(1, 256, DefinedType()));
    KELVRA_NULL(videoCommandReject);
    KELVRA_NULL(terminalDropReject);
    KELVRA_ALTERNATIVE(makeMeChairResponse, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(extensionAddressResponse, InlineType());
    KELVRA_ALTERNATIVE(chairTokenOwnerResponse, DefinedType());
    KELVRA_ALTERNATIVE(terminalCertificateResponse, InlineType());
    KELVRA_ALTERNATIVE(broadcastMyLogicalChannelResponse, DefinedType());
    KELVRA_ALTERNATIVE(makeTerminalBroadcasterResponse, DefinedType());
    KELVRA_ALTERNATIVE(sendThisSourceResponse, DefinedType());
    KELVRA_ALTERNATIVE(requestAllTerminalIDsResponse, DefinedType());
    KELVRA_ALTERNATIVE(remoteMCResponse, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
