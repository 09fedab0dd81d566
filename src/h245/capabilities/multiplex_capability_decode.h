#pragma once

#include "h245/capabilities/multiplex_capability.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeMultiplexCapability(MultiplexCapability& m, PerReader& r);

}  // namespace kelvra::h245
