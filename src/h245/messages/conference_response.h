// Answers to requests about the members of a conference.
#pragma once

#include <stdint.h>

#include "../channels/h2250_parameters.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

// Also the layout of the alternatives of ConferenceResponse that tell a terminal's identifier.
struct TerminalInformation {
  TerminalLabel terminalLabel;
  OctetStringValue terminalID;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("terminalLabel", m.terminalLabel);
    WalkOctets(v, "terminalID", m.terminalID);
  }
};

struct RequestAllTerminalIDsResponse {
  uint8_t terminalInformationCount;
  TerminalInformation* terminalInformation;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.List("terminalInformation", KELVRA_LIST(m.terminalInformation));
  }
};

struct RemoteMCResponse {
  struct RejectNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"unspecified", "functionNotSupported"};
  };
  using Reject = NullChoice<RejectNames>;

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    Reject reject;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Null("accept");
      case 1: return v.Record("reject", m.reject);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct ConferenceResponse {
  struct ConferenceIDResponse {
    TerminalLabel terminalLabel;
    OctetStringValue conferenceID;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("terminalLabel", m.terminalLabel);
      WalkOctets(v, "conferenceID", m.conferenceID);
    }
  };

  struct PasswordResponse {
    TerminalLabel terminalLabel;
    OctetStringValue password;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("terminalLabel", m.terminalLabel);
      WalkOctets(v, "password", m.password);
    }
  };

  struct TerminalListResponse {
    uint16_t count;
    TerminalLabel* elements;
  };

  struct MakeMeChairResponseNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"grantedChairToken", "deniedChairToken"};
  };
  using MakeMeChairResponse = NullChoice<MakeMeChairResponseNames>;

  struct ExtensionAddressResponse {
    OctetStringValue extensionAddress;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      WalkOctets(v, "extensionAddress", m.extensionAddress);
    }
  };

  struct TerminalCertificateResponse {
    uint32_t hasTerminalLabel;
    TerminalLabel terminalLabel;
    uint32_t hasCertificateResponse;
    OctetStringValue certificateResponse;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasTerminalLabel) v.Record("terminalLabel", m.terminalLabel);
      if (m.hasCertificateResponse) WalkOctets(v, "certificateResponse", m.certificateResponse);
    }
  };

  struct BroadcastMyLogicalChannelResponseNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"grantedBroadcastMyLogicalChannel",
                                                    "deniedBroadcastMyLogicalChannel"};
  };
  using BroadcastMyLogicalChannelResponse = NullChoice<BroadcastMyLogicalChannelResponseNames>;

  struct MakeTerminalBroadcasterResponseNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"grantedMakeTerminalBroadcaster", "deniedMakeTerminalBroadcaster"};
  };
  using MakeTerminalBroadcasterResponse = NullChoice<MakeTerminalBroadcasterResponseNames>;

  struct SendThisSourceResponseNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"grantedSendThisSource", "deniedSendThisSource"};
  };
  using SendThisSourceResponse = NullChoice<SendThisSourceResponseNames>;

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("extensionAddressResponse", m.extensionAddressResponse);
        case 1: return v.Record("chairTokenOwnerResponse", m.chairTokenOwnerResponse);
        case 2: return v.Record("terminalCertificateResponse", m.terminalCertificateResponse);
        case 3: return v.Record("broadcastMyLogicalChannelResponse", m.broadcastMyLogicalChannelResponse);
        case 4: return v.Record("makeTerminalBroadcasterResponse", m.makeTerminalBroadcasterResponse);
        case 5: return v.Record("sendThisSourceResponse", m.sendThisSourceResponse);
        case 6: return v.Record("requestAllTerminalIDsResponse", m.requestAllTerminalIDsResponse);
        case 7: return v.Record("remoteMCResponse", m.remoteMCResponse);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("mCTerminalIDResponse", m.mCTerminalIDResponse);
      case 1: return v.Record("terminalIDResponse", m.terminalIDResponse);
      case 2: return v.Record("conferenceIDResponse", m.conferenceIDResponse);
      case 3: return v.Record("passwordResponse", m.passwordResponse);
      case 4: return v.List("terminalListResponse", ListOf(m.terminalListResponse));
      case 5: return v.Null("videoCommandReject");
      case 6: return v.Null("terminalDropReject");
      case 7: return v.Record("makeMeChairResponse", m.makeMeChairResponse);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
