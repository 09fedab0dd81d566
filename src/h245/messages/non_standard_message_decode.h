#pragma once

#include "h245/messages/non_standard_message.h"
#include "per/reader.h"

namespace kelvra::h245 {

// `messageClass` is the dispatcher's, and is there before the rest.
void DecodeNonStandardMessage(H245NonStandardMessageRecord& m, PerReader& r);

}  // namespace kelvra::h245
