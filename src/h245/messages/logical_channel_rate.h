// The bit rate of a logical channel.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct LogicalChannelRate {
  uint8_t sequenceNumber;
  uint16_t logicalChannelNumber;
  uint32_t maximumBitRate;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
    v.Number("logicalChannelNumber", m.logicalChannelNumber);
    v.Number("maximumBitRate", m.maximumBitRate);
  }
};

using LogicalChannelRateRequest = LogicalChannelRate;
using LogicalChannelRateAcknowledge = LogicalChannelRate;

struct LogicalChannelRateRejectReasonNames {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"undefinedReason", "insufficientResources"};
};
using LogicalChannelRateRejectReason = NullChoice<LogicalChannelRateRejectReasonNames>;

struct LogicalChannelRateReject {
  uint8_t sequenceNumber;
  uint16_t logicalChannelNumber;
  LogicalChannelRateRejectReason rejectReason;
  uint32_t hasCurrentMaximumBitRate;
  uint32_t currentMaximumBitRate;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
    v.Number("logicalChannelNumber", m.logicalChannelNumber);
    v.Record("rejectReason", m.rejectReason);
    if (m.hasCurrentMaximumBitRate) v.Number("currentMaximumBitRate", m.currentMaximumBitRate);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
