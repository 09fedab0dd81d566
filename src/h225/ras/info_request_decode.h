#pragma once

#include "codec/status.h"
#include "h225/ras/info_request.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeInfoRequest(InfoRequest& m, PerReader& r);

}  // namespace kelvra::h225
