#pragma once

#include "h245/open_logical_channel.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeOpenLogicalChannel(OpenLogicalChannel& m, PerReader& r);
void DecodeOpenLogicalChannelAck(OpenLogicalChannelAck& m, PerReader& r);

}  // namespace kelvra::h245
