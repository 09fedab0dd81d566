#pragma once

#include "codec/status.h"
#include "h225/call/facility_uuie.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeFacilityUUIE(FacilityUUIE& m, PerReader& r);

}  // namespace kelvra::h225
