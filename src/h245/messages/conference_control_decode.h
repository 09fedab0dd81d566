#pragma once

#include "h245/messages/conference_control.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeConferenceCommand(ConferenceCommand& m, PerReader& r);
void DecodeConferenceIndication(ConferenceIndication& m, PerReader& r);

}  // namespace kelvra::h245
