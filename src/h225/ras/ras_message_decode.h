#pragma once

#include "codec/status.h"
#include "h225/ras/ras_message.h"
#include "per/reader.h"

namespace kelvra::h225 {

// Reads the RasMessage CHOICE and the body it names.
Status DecodeRasMessage(RasMessageRecord& m, PerReader& r);

}  // namespace kelvra::h225
