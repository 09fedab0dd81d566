// Giving back the blocks of H.245 records, by the same rule as those of H.225.0.
#pragma once

#include "kelvra/h245/messages/h245_message.h"

namespace kelvra::h245 {

// The record is not tested for null.
void ReleaseH245Message(H245MessageRecord& record);

}  // namespace kelvra::h245
