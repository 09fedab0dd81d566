// Usage reports of calls.
#pragma once

#include "non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

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

  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(nonStandardUsageTypes, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasStartTime, startTime, Null());
    KELVRA_OPTIONAL(hasEndTime, endTime, Null());
    KELVRA_OPTIONAL(hasTerminationCause, terminationCause, Null());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasStart, start, Null());
      KELVRA_OPTIONAL(hasEnd, end, Null());
      KELVRA_OPTIONAL(hasInIrr, inIrr, Null());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct CallStartingPoint {
    uint32_t hasAlerting;
    uint8_t alerting;
    uint32_t hasConnect;
    uint8_t connect;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasAlerting, alerting, Null());
      KELVRA_OPTIONAL(hasConnect, connect, Null());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  When when;
  uint32_t hasCallStartingPoint;
  CallStartingPoint callStartingPoint;
  RasUsageInfoTypes required;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(when, InlineType());
    KELVRA_OPTIONAL(hasCallStartingPoint, callStartingPoint, InlineType());
    KELVRA_MEMBER(required, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(nonStandardUsageFields, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasAlertingTime, alertingTime, Integer(1, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasConnectTime, connectTime, Integer(1, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasEndTime, endTime, Integer(1, kUnsigned32Maximum));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
