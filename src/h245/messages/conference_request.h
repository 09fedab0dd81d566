// Requests about the members of a conference.
#pragma once

#include <stdint.h>

#include "../channels/h2250_parameters.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct Criteria {
  ObjectIdentifierValue field;
  OctetStringValue value;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("field", m.field);
    WalkOctets(v, "value", m.value);
  }
};

struct RemoteMCRequestNames {
  static constexpr uint32_t kRoots = 3;
  static constexpr const char* kAlternatives[] = {"masterActivate", "slaveActivate", "deActivate"};
};
using RemoteMCRequest = NullChoice<RemoteMCRequestNames>;

struct ConferenceRequest {
  struct RequestTerminalCertificate {
    uint32_t hasTerminalLabel;
    TerminalLabel terminalLabel;
    uint32_t hasCertSelectionCriteria;
    uint8_t certSelectionCriteriaCount;
    Criteria* certSelectionCriteria;
    uint32_t hasSRandom;
    uint32_t sRandom;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasTerminalLabel) v.Record("terminalLabel", m.terminalLabel);
      if (m.hasCertSelectionCriteria) v.List("certSelectionCriteria", KELVRA_LIST(m.certSelectionCriteria));
      if (m.hasSRandom) v.Number("sRandom", m.sRandom);
    }
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    TerminalLabel dropTerminal;
    TerminalLabel requestTerminalID;
    RequestTerminalCertificate requestTerminalCertificate;
    uint16_t broadcastMyLogicalChannel;
    TerminalLabel makeTerminalBroadcaster;
    TerminalLabel sendThisSource;
    RemoteMCRequest remoteMCRequest;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Null("enterExtensionAddress");
        case 1: return v.Null("requestChairTokenOwner");
        case 2: return v.Record("requestTerminalCertificate", m.requestTerminalCertificate);
        case 3: return v.Number("broadcastMyLogicalChannel", m.broadcastMyLogicalChannel);
        case 4: return v.Record("makeTerminalBroadcaster", m.makeTerminalBroadcaster);
        case 5: return v.Record("sendThisSource", m.sendThisSource);
        case 6: return v.Null("requestAllTerminalIDs");
        case 7: return v.Record("remoteMCRequest", m.remoteMCRequest);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Null("terminalListRequest");
      case 1: return v.Null("makeMeChair");
      case 2: return v.Null("cancelMakeMeChair");
      case 3: return v.Record("dropTerminal", m.dropTerminal);
      case 4: return v.Record("requestTerminalID", m.requestTerminalID);
      case 5: return v.Null("enterH243Password");
      case 6: return v.Null("enterH243TerminalID");
      case 7: return v.Null("enterH243ConferenceID");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
