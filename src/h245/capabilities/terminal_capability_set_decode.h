#pragma once

#include "h245/capabilities/terminal_capability_set.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeTerminalCapabilitySet(TerminalCapabilitySet& m, PerReader& r);
void DecodeTerminalCapabilitySetReject(TerminalCapabilitySetReject& m, PerReader& r);

}  // namespace kelvra::h245
