#pragma once

#include "codec/status.h"
#include "h225/common/usage.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeRasUsageInfoTypes(RasUsageInfoTypes& m, PerReader& r);
Status DecodeRasUsageSpecification(RasUsageSpecification& m, PerReader& r);
Status DecodeRasUsageInformation(RasUsageInformation& m, PerReader& r);

}  // namespace kelvra::h225
