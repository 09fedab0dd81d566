#pragma once

#include "h245/messages/end_session_command.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeEndSessionCommand(EndSessionCommand& m, PerReader& r);

}  // namespace kelvra::h245
