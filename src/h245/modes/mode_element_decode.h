#pragma once

#include "h245/modes/mode_element.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeModeElement(ModeElement& m, PerReader& r);

}  // namespace kelvra::h245
