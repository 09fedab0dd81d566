// Circuits and call capacity.
#pragma once

#include <stdint.h>

#include "generic_data.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct CicInfo {
  uint8_t cicCount;
  OctetStringValue* cic;
  OctetStringValue pointCode;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.OctetStrings("cic", KELVRA_LIST(m.cic), OctetNotation::kOctets);
    WalkOctets(v, "pointCode", m.pointCode);
  }
};

struct GroupID {
  uint32_t hasMember;
  uint8_t memberCount;
  uint16_t* member;
  OctetStringValue group;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasMember) v.Numbers("member", KELVRA_LIST(m.member));
    WalkOctets(v, "group", m.group, OctetNotation::kCharacters);
  }
};

struct CircuitIdentifier {
  uint32_t hasCic;
  CicInfo cic;
  uint32_t hasGroup;
  GroupID group;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasCic) v.Record("cic", m.cic);
    if (m.hasGroup) v.Record("group", m.group);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasSourceCircuitID) v.Record("sourceCircuitID", m.sourceCircuitID);
    if (m.hasDestinationCircuitID) v.Record("destinationCircuitID", m.destinationCircuitID);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct CallsAvailable {
  uint32_t calls;
  uint32_t hasGroup;
  OctetStringValue group;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("calls", m.calls);
    if (m.hasGroup) WalkOctets(v, "group", m.group, OctetNotation::kCharacters);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasVoiceGwCallsAvailable) v.List("voiceGwCallsAvailable", KELVRA_LIST(m.voiceGwCallsAvailable));
    if (m.hasH310GwCallsAvailable) v.List("h310GwCallsAvailable", KELVRA_LIST(m.h310GwCallsAvailable));
    if (m.hasH320GwCallsAvailable) v.List("h320GwCallsAvailable", KELVRA_LIST(m.h320GwCallsAvailable));
    if (m.hasH321GwCallsAvailable) v.List("h321GwCallsAvailable", KELVRA_LIST(m.h321GwCallsAvailable));
    if (m.hasH322GwCallsAvailable) v.List("h322GwCallsAvailable", KELVRA_LIST(m.h322GwCallsAvailable));
    if (m.hasH323GwCallsAvailable) v.List("h323GwCallsAvailable", KELVRA_LIST(m.h323GwCallsAvailable));
    if (m.hasH324GwCallsAvailable) v.List("h324GwCallsAvailable", KELVRA_LIST(m.h324GwCallsAvailable));
    if (m.hasT120OnlyGwCallsAvailable) v.List("t120OnlyGwCallsAvailable", KELVRA_LIST(m.t120OnlyGwCallsAvailable));
    if (m.hasT38FaxAnnexbOnlyGwCallsAvailable)
      v.List("t38FaxAnnexbOnlyGwCallsAvailable", KELVRA_LIST(m.t38FaxAnnexbOnlyGwCallsAvailable));
    if (m.hasTerminalCallsAvailable) v.List("terminalCallsAvailable", KELVRA_LIST(m.terminalCallsAvailable));
    if (m.hasMcuCallsAvailable) v.List("mcuCallsAvailable", KELVRA_LIST(m.mcuCallsAvailable));
  }
};

struct CallCapacity {
  uint32_t hasMaximumCallCapacity;
  CallCapacityInfo maximumCallCapacity;
  uint32_t hasCurrentCallCapacity;
  CallCapacityInfo currentCallCapacity;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasMaximumCallCapacity) v.Record("maximumCallCapacity", m.maximumCallCapacity);
    if (m.hasCurrentCallCapacity) v.Record("currentCallCapacity", m.currentCallCapacity);
  }
};

struct CapacityReportingCapability {
  uint32_t canReportCallCapacity;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("canReportCallCapacity", m.canReportCallCapacity);
  }
};

struct CapacityReportingSpecification {
  struct When {
    uint32_t hasCallStart;
    uint8_t callStart;
    uint32_t hasCallEnd;
    uint8_t callEnd;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasCallStart) v.Null("callStart");
      if (m.hasCallEnd) v.Null("callEnd");
    }
  };

  When when;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("when", m.when);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
