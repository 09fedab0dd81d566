#pragma once

#include "h245/messages/h245_message.h"
#include "per/reader.h"

namespace kelvra::h245 {

// Reads the MultimediaSystemControlMessage CHOICE, the CHOICE of its class and the body that names.
void DecodeMultimediaSystemControlMessage(H245MessageRecord& m, PerReader& r);

}  // namespace kelvra::h245
