#pragma once

#include "h245/messages/user_input.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeUserInputIndication(UserInputIndication& m, PerReader& r);

}  // namespace kelvra::h245
