#pragma once

#include "codec/status.h"
#include "h225/ras/disengage.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeDisengageRequest(DisengageRequest& m, PerReader& r);
Status DecodeDisengageConfirm(DisengageConfirm& m, PerReader& r);
Status DecodeDisengageReject(DisengageReject& m, PerReader& r);

}  // namespace kelvra::h225
