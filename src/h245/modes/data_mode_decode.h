#pragma once

#include "h245/modes/data_mode.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeDataMode(DataMode& m, PerReader& r);

}  // namespace kelvra::h245
