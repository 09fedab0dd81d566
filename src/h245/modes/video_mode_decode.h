#pragma once

#include "h245/modes/video_mode.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeVideoMode(VideoMode& m, PerReader& r);

}  // namespace kelvra::h245
