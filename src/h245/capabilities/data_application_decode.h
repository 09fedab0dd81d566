#pragma once

#include "h245/capabilities/data_application.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeDataApplicationCapability(DataApplicationCapability& m, PerReader& r);

}  // namespace kelvra::h245
