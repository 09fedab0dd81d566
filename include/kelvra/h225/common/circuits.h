// Circuits and call capacity.
#pragma once

#include "generic_data.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct CicInfo {
  uint8_t cicCount;
  OctetStringValue* cic;
  OctetStringValue pointCode;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(cic, SequenceOf(OctetString(2, 4)));
    KELVRA_MEMBER(pointCode, OctetString(2, 5));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct GroupID {
  uint32_t hasMember;
  uint8_t memberCount;
  uint16_t* member;
  OctetStringValue group;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL_LIST(hasMember, member, SequenceOf(Integer(0, 65535)));
    KELVRA_MEMBER(group, IA5String(1, 128));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CircuitIdentifier {
  uint32_t hasCic;
  CicInfo cic;
  uint32_t hasGroup;
  GroupID group;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasCic, cic, DefinedType());
    KELVRA_OPTIONAL(hasGroup, group, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CircuitInfo {
  uint32_t hasSourceCircuitID;
  CircuitIdentifier sourceCircuitID;
  uint32_t hasDestinationCircuitID;
  CircuitIdentifier destinationCircuitID;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasSourceCircuitID, sourceCircuitID, DefinedType());
    KELVRA_OPTIONAL(hasDestinationCircuitID, destinationCircuitID, DefinedType());
    KELVRA_OPTIONAL_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CallsAvailable {
  uint32_t calls;
  uint32_t hasGroup;
  OctetStringValue group;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(calls, Integer(0, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasGroup, group, IA5String(1, 128));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CallCapacityInfo {
  uint32_t hasVoiceGwCallsAvailable;
  uint8_t voiceGwCallsAvailableCount;
  CallsAvailable* voiceGwCallsAvailable;
  uint32_t hasH310GwCallsAvailable;
  uint8_t h310GwCallsAvailableCount;
  CallsAvailable* h310GwCallsAvailable;
  uint32_t hasH320GwCallsAvailable;
  uint8_t h320GwCallsAvailableCount;
  CallsAvailable* h320GwCallsAvailable;
  uint32_t hasH321GwCallsAvailable;
  uint8_t h321GwCallsAvailableCount;
  CallsAvailable* h321GwCallsAvailable;
  uint32_t hasH322GwCallsAvailable;
  uint8_t h322GwCallsAvailableCount;
  CallsAvailable* h322GwCallsAvailable;
  uint32_t hasH323GwCallsAvailable;
  uint8_t h323GwCallsAvailableCount;
  CallsAvailable* h323GwCallsAvailable;
  uint32_t hasH324GwCallsAvailable;
  uint8_t h324GwCallsAvailableCount;
  CallsAvailable* h324GwCallsAvailable;
  uint32_t hasT120OnlyGwCallsAvailable;
  uint8_t t120OnlyGwCallsAvailableCount;
  CallsAvailable* t120OnlyGwCallsAvailable;
  uint32_t hasT38FaxAnnexbOnlyGwCallsAvailable;
  uint8_t t38FaxAnnexbOnlyGwCallsAvailableCount;
  CallsAvailable* t38FaxAnnexbOnlyGwCallsAvailable;
  uint32_t hasTerminalCallsAvailable;
  uint8_t terminalCallsAvailableCount;
  CallsAvailable* terminalCallsAvailable;
  uint32_t hasMcuCallsAvailable;
  uint8_t mcuCallsAvailableCount;
  CallsAvailable* mcuCallsAvailable;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL_LIST(hasVoiceGwCallsAvailable, voiceGwCallsAvailable, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasH310GwCallsAvailable, h310GwCallsAvailable, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasH320GwCallsAvailable, h320GwCallsAvailable, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasH321GwCallsAvailable, h321GwCallsAvailable, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasH322GwCallsAvailable, h322GwCallsAvailable, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasH323GwCallsAvailable, h323GwCallsAvailable, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasH324GwCallsAvailable, h324GwCallsAvailable, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasT120OnlyGwCallsAvailable, t120OnlyGwCallsAvailable, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasT38FaxAnnexbOnlyGwCallsAvailable, t38FaxAnnexbOnlyGwCallsAvailable,
                         SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasTerminalCallsAvailable, terminalCallsAvailable, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasMcuCallsAvailable, mcuCallsAvailable, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CallCapacity {
  uint32_t hasMaximumCallCapacity;
  CallCapacityInfo maximumCallCapacity;
  uint32_t hasCurrentCallCapacity;
  CallCapacityInfo currentCallCapacity;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasMaximumCallCapacity, maximumCallCapacity, DefinedType());
    KELVRA_OPTIONAL(hasCurrentCallCapacity, currentCallCapacity, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CapacityReportingCapability {
  uint32_t canReportCallCapacity;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(canReportCallCapacity, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CapacityReportingSpecification {
  struct When {
    uint32_t hasCallStart;
    uint8_t callStart;
    uint32_t hasCallEnd;
    uint8_t callEnd;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasCallStart, callStart, Null());
      KELVRA_OPTIONAL(hasCallEnd, callEnd, Null());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  When when;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(when, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
