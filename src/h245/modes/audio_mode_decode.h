#pragma once

#include "h245/modes/audio_mode.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeAudioMode(AudioMode& m, PerReader& r);

}  // namespace kelvra::h245
