#pragma once

#include "h245/modes/request_mode.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeRequestMode(RequestMode& m, PerReader& r);
void DecodeRequestModeAck(RequestModeAck& m, PerReader& r);
void DecodeRequestModeReject(RequestModeReject& m, PerReader& r);

}  // namespace kelvra::h245
