#pragma once

#include "h245/capabilities/capability.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeCapability(Capability& m, PerReader& r);

}  // namespace kelvra::h245
