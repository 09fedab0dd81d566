#pragma once

#include "codec/status.h"
#include "h225/ras/service_control.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeServiceControlIndication(ServiceControlIndication& m, PerReader& r);
Status DecodeServiceControlResponse(ServiceControlResponse& m, PerReader& r);

}  // namespace kelvra::h225
