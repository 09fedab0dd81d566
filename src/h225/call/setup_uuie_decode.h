#pragma once

#include "codec/status.h"
#include "h225/call/setup_uuie.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeSetupUUIE(SetupUUIE& m, PerReader& r);

}  // namespace kelvra::h225
