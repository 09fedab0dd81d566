#pragma once

#include "codec/status.h"
#include "h225/common/uuies_requested.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeUUIEsRequested(UUIEsRequested& m, PerReader& r);

}  // namespace kelvra::h225
