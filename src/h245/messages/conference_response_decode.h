#pragma once

#include "h245/messages/conference_response.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeConferenceResponse(ConferenceResponse& m, PerReader& r);

}  // namespace kelvra::h245
