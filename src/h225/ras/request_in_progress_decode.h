#pragma once

#include "codec/status.h"
#include "h225/ras/request_in_progress.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeRequestInProgress(RequestInProgress& m, PerReader& r);

}  // namespace kelvra::h225
