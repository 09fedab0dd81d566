// The private form of nonStandardData, for which DisengageRequest and the admission bodies have room.
#pragma once

#include <stdint.h>

namespace kelvra::h225 {

// nonStandardDataForm tells the form that is filled. It is always 0, a NonStandardParameter; the room
// for the private form stays zero and only fixes where the members after it stand.
inline constexpr uint32_t kPrivateFormOctets = 50;

}  // namespace kelvra::h225
