#pragma once

#include "h245/channels/open_logical_channel.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeOpenLogicalChannel(OpenLogicalChannel& m, PerReader& r);
void DecodeOpenLogicalChannelAck(OpenLogicalChannelAck& m, PerReader& r);

}  // namespace kelvra::h245
