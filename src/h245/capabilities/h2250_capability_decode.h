#pragma once

#include "h245/capabilities/h2250_capability.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeH2250Capability(H2250Capability& m, PerReader& r);

}  // namespace kelvra::h245
