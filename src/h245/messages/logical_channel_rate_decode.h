#pragma once

#include "h245/messages/logical_channel_rate.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeLogicalChannelRate(LogicalChannelRate& m, PerReader& r);
void DecodeLogicalChannelRateReject(LogicalChannelRateReject& m, PerReader& r);

}  // namespace kelvra::h245
