#pragma once

#include "codec/status.h"
#include "h225/ras/info_request_response.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeInfoRequestResponse(InfoRequestResponse& m, PerReader& r);

}  // namespace kelvra::h225
