#pragma once

#include "h245/messages/flow_control.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeMultiplexScope(MultiplexScope& m, PerReader& r);
void DecodeFlowControl(FlowControl& m, PerReader& r);

}  // namespace kelvra::h245
