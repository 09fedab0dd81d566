#pragma once

#include "codec/status.h"
#include "h225/common/non_standard.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeH221NonStandard(H221NonStandard& m, PerReader& r);
Status DecodeNonStandardParameter(NonStandardParameter& m, PerReader& r);

}  // namespace kelvra::h225
