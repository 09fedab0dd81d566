#pragma once

#include "h245/modes/mode_element_type.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeModeElementType(ModeElementType& m, PerReader& r);

}  // namespace kelvra::h245
