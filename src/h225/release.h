// Giving back the blocks of H.225.0 records. Every pointer that is reachable is null afterwards;
// releasing a record again does nothing, and a null record is reported to the hook and ignored.
#pragma once

#include "h225/call/q931_message.h"
#include "h225/ras/ras_message.h"

namespace kelvra::h225 {

void ReleaseRasMessage(RasMessageRecord* record);
void ReleaseH323UserInformation(H323UserInformation* record);

}  // namespace kelvra::h225
