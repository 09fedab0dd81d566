// What is reported about the use that calls made of the network.
#pragma once

#include <stdint.h>

#include "non_standard.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct RasUsageInfoTypes {
  uint8_t nonStandardUsageTypesCount;
  NonStandardParameter* nonStandardUsageTypes;
  uint32_t hasStartTime;
  uint8_t startTime;
  uint32_t hasEndTime;
  uint8_t endTime;
  uint32_t hasTerminationCause;
  uint8_t terminationCause;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.List("nonStandardUsageTypes", KELVRA_LIST(m.nonStandardUsageTypes));
    if (m.hasStartTime) v.Null("startTime");
    if (m.hasEndTime) v.Null("endTime");
    if (m.hasTerminationCause) v.Null("terminationCause");
  }
};

struct RasUsageSpecification {
  struct When {
    uint32_t hasStart;
    uint8_t start;
    uint32_t hasEnd;
    uint8_t end;
    uint32_t hasInIrr;
    uint8_t inIrr;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasStart) v.Null("start");
      if (m.hasEnd) v.Null("end");
      if (m.hasInIrr) v.Null("inIrr");
    }
  };

  struct CallStartingPoint {
    uint32_t hasAlerting;
    uint8_t alerting;
    uint32_t hasConnect;
    uint8_t connect;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasAlerting) v.Null("alerting");
      if (m.hasConnect) v.Null("connect");
    }
  };

  When when;
  uint32_t hasCallStartingPoint;
  CallStartingPoint callStartingPoint;
  RasUsageInfoTypes required;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("when", m.when);
    if (m.hasCallStartingPoint) v.Record("callStartingPoint", m.callStartingPoint);
    v.Record("required", m.required);
  }
};

// Times are in seconds since 1970-01-01 00:00 UTC.
struct RasUsageInformation {
  uint8_t nonStandardUsageFieldsCount;
  NonStandardParameter* nonStandardUsageFields;
  uint32_t hasAlertingTime;
  uint32_t alertingTime;
  uint32_t hasConnectTime;
  uint32_t connectTime;
  uint32_t hasEndTime;
  uint32_t endTime;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.List("nonStandardUsageFields", KELVRA_LIST(m.nonStandardUsageFields));
    if (m.hasAlertingTime) v.Number("alertingTime", m.alertingTime);
    if (m.hasConnectTime) v.Number("connectTime", m.connectTime);
    if (m.hasEndTime) v.Number("endTime", m.endTime);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
