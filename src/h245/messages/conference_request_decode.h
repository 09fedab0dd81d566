#pragma once

#include "h245/messages/conference_request.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeConferenceRequest(ConferenceRequest& m, PerReader& r);

}  // namespace kelvra::h245
