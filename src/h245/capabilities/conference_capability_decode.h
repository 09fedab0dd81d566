#pragma once

#include "h245/capabilities/conference_capability.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeConferenceCapability(ConferenceCapability& m, PerReader& r);
void DecodeUserInputCapability(UserInputCapability& m, PerReader& r);

}  // namespace kelvra::h245
