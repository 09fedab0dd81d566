#pragma once

#include "h245/messages/send_terminal_capability_set.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeSendTerminalCapabilitySet(SendTerminalCapabilitySet& m, PerReader& r);

}  // namespace kelvra::h245
