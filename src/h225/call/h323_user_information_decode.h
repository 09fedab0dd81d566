#pragma once

#include "codec/status.h"
#include "h225/call/h323_user_information.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeH323UUPDU(H323UUPDU& m, PerReader& r);
Status DecodeH323UserInformation(H323UserInformation& m, PerReader& r);

}  // namespace kelvra::h225
