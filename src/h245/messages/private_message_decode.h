#pragma once

#include "codec/status.h"
#include "h245/messages/private_message.h"
#include "per/reader.h"

namespace kelvra::h245 {

// From a reader that ends with the private message. A message that fails holds no block.
Status DecodePrivateMessage(PrivateMessage& m, PerReader& r);

}  // namespace kelvra::h245
