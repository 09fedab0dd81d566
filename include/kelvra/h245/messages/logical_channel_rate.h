// The bit rate of a logical channel.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct LogicalChannelRate {
  uint8_t sequenceNumber;
  uint16_t logicalChannelNumber;
  uint32_t maximumBitRate;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_MEMBER(logicalChannelNumber, Integer(1, 65535));
    KELVRA_MEMBER(maximumBitRate, Integer(0, kUnsigned32Maximum));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

using LogicalChannelRateRequest = LogicalChannelRate;
using LogicalChannelRateAcknowledge = LogicalChannelRate;

KELVRA_NULL_CHOICE(NullChoice, LogicalChannelRateRejectReason, 2, "undefinedReason", "insufficientResources");

struct LogicalChannelRateReject {
  uint8_t sequenceNumber;
  uint16_t logicalChannelNumber;
  LogicalChannelRateRejectReason rejectReason;
  uint32_t hasCurrentMaximumBitRate;
  uint32_t currentMaximumBitRate;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_MEMBER(logicalChannelNumber, Integer(1, 65535));
    KELVRA_MEMBER(rejectReason, DefinedType());
    KELVRA_OPTIONAL(hasCurrentMaximumBitRate, currentMaximumBitRate, Integer(0, kUnsigned32Maximum));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
