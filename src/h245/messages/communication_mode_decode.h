#pragma once

#include "h245/messages/communication_mode.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeCommunicationModeCommand(CommunicationModeCommand& m, PerReader& r);
void DecodeCommunicationModeResponse(CommunicationModeResponse& m, PerReader& r);

}  // namespace kelvra::h245
