#pragma once

#include "codec/status.h"
#include "h225/call/information_uuie.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeInformationUUIE(InformationUUIE& m, PerReader& r);
Status DecodeCallStatusUUIE(CallStatusUUIE& m, PerReader& r);

}  // namespace kelvra::h225
