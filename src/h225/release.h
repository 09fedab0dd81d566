// Giving back the blocks of H.225.0 records. Every pointer that is reachable is null afterwards;
// releasing a record again does nothing, and a null record is reported to the hook and ignored.
#pragma once

namespace kelvra::h225 {

struct RasMessageRecord;
struct H323UserInformation;

void ReleaseRasMessage(RasMessageRecord* record);
void ReleaseH323UserInformation(H323UserInformation* record);

}  // namespace kelvra::h225
