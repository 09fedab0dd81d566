// The private form of nonStandardData. DisengageRequest and the admission bodies reserve room for it.
#pragma once

#include <stdint.h>

namespace kelvra::h225 {

// nonStandardDataForm gives the form in use: always 0, a NonStandardParameter. The room for the private
// form stays zero and only fixes the offsets of the members after it.
inline constexpr uint32_t kPrivateFormOctets = 50;

}  // namespace kelvra::h225
