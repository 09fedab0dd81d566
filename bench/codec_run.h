// The measured code: a decode with its release, and the floor, the least work that both need.
#pragma once

#include "kelvra/kelvra.h"
#include "workload.h"

namespace kelvra::bench {

// A record of any family.
union AnyRecord {
  h225::RasMessageRecord ras;
  h225::Q931MessageRecord q931;
  h245::H245MessageRecord h245;
};

void Decode(AnyRecord& record, const Message& message);
void Release(AnyRecord& record, const Message& message);

// Clears the record, reads each octet once, and allocates and frees the message's blocks with calloc and free. `blocks`
// has room for all of them.
void RunFloor(AnyRecord& record, const Message& message, std::vector<void*>& blocks);

// The most blocks that a message of the workload allocates.
size_t MostBlocks(const Workload& workload);

}  // namespace kelvra::bench
