#pragma once

#include "h245/messages/close_logical_channel.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeOpenLogicalChannelReject(OpenLogicalChannelReject& m, PerReader& r);
void DecodeCloseLogicalChannel(CloseLogicalChannel& m, PerReader& r);
void DecodeRequestChannelClose(RequestChannelClose& m, PerReader& r);
void DecodeRequestChannelCloseReject(RequestChannelCloseReject& m, PerReader& r);

}  // namespace kelvra::h245
