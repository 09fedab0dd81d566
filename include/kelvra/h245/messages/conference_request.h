// Requests about the members of a conference.
#pragma once

#include "../channels/h2250_parameters.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct Criteria {
  ObjectIdentifierValue field;
  OctetStringValue value;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(field, ObjectIdentifier());
    KELVRA_MEMBER(value, OctetString(1, 65535));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

KELVRA_NULL_CHOICE(NullChoice, RemoteMCRequest, 3, "masterActivate", "slaveActivate", "deActivate");

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

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasTerminalLabel, terminalLabel, DefinedType());
      KELVRA_OPTIONAL_LIST(hasCertSelectionCriteria, certSelectionCriteria, SequenceOf(1, 16, DefinedType()));
      KELVRA_OPTIONAL(hasSRandom, sRandom, Integer(1, kUnsigned32Maximum));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(terminalListRequest);
    KELVRA_NULL(makeMeChair);
    KELVRA_NULL(cancelMakeMeChair);
    KELVRA_ALTERNATIVE(dropTerminal, DefinedType());
    KELVRA_ALTERNATIVE(requestTerminalID, DefinedType());
    KELVRA_NULL(enterH243Password);
    KELVRA_NULL(enterH243TerminalID);
    KELVRA_NULL(enterH243ConferenceID);
    KELVRA_EXTENSION(isExtension);
    KELVRA_NULL(enterExtensionAddress);
    KELVRA_NULL(requestChairTokenOwner);
    KELVRA_ALTERNATIVE(requestTerminalCertificate, InlineType());
    KELVRA_ALTERNATIVE(broadcastMyLogicalChannel, Integer(1, 65535));
    KELVRA_ALTERNATIVE(makeTerminalBroadcaster, DefinedType());
    KELVRA_ALTERNATIVE(sendThisSource, DefinedType());
    KELVRA_NULL(requestAllTerminalIDs);
    KELVRA_ALTERNATIVE(remoteMCRequest, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
