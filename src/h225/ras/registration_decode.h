#pragma once

#include "codec/status.h"
#include "h225/ras/registration.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeRegistrationRequest(RegistrationRequest& m, PerReader& r);
Status DecodeRegistrationConfirm(RegistrationConfirm& m, PerReader& r);
Status DecodeRegistrationReject(RegistrationReject& m, PerReader& r);

}  // namespace kelvra::h225
