#pragma once

#include "codec/status.h"
#include "h225/ras/non_standard_message.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeNonStandardMessage(NonStandardMessage& m, PerReader& r);
Status DecodeUnknownMessageResponse(UnknownMessageResponse& m, PerReader& r);

}  // namespace kelvra::h225
