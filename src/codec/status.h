// The result of a decoder. A status other than kDecoded propagates unchanged.
#pragma once

#include <stdint.h>

namespace kelvra {

enum [[nodiscard]] Status : uint8_t{
    kDecoded = 0,
    kMalformed = 1,  // an impossible value, such as a root index beyond the alternatives
    kExhausted = 2,  // the reader was at its end on entry or before a member; or a url-ID or email-ID is too long
    kUnsupportedVersion = 3,  // a registration message of an unknown H.225.0 version; the reader is at its end
    kRefused = 4,             // a heap block was refused; the reader is at its end
};

}  // namespace kelvra

// Decodes one component and returns its status from the decoder unless it is kDecoded.
#define KELVRA_TRY(component)                                                                        \
  do {                                                                                               \
    if (const ::kelvra::Status status_ = (component); status_ != ::kelvra::kDecoded) return status_; \
  } while (false)
