#pragma once

#include "codec/status.h"
#include "h225/ras/disengage.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeDisengageReason(DisengageReason& m, PerReader& r);
Status DecodeDisengageRejectReason(DisengageRejectReason& m, PerReader& r);
Status DecodeDisengageRequest(DisengageRequest& m, PerReader& r);
Status DecodeDisengageConfirm(DisengageConfirm& m, PerReader& r);
Status DecodeDisengageReject(DisengageReject& m, PerReader& r);

}  // namespace kelvra::h225
