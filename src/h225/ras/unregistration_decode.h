#pragma once

#include "codec/status.h"
#include "h225/ras/unregistration.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeUnregistrationRequest(UnregistrationRequest& m, PerReader& r);
Status DecodeUnregistrationConfirm(UnregistrationConfirm& m, PerReader& r);
Status DecodeUnregistrationReject(UnregistrationReject& m, PerReader& r);

}  // namespace kelvra::h225
