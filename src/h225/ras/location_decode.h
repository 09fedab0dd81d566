#pragma once

#include "codec/status.h"
#include "h225/ras/location.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeLocationRequest(LocationRequest& m, PerReader& r);
Status DecodeLocationConfirm(LocationConfirm& m, PerReader& r);
Status DecodeLocationReject(LocationReject& m, PerReader& r);

}  // namespace kelvra::h225
