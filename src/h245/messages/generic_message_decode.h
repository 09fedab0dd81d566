#pragma once

#include "h245/messages/generic_message.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeGenericMessage(GenericMessage& m, PerReader& r);

}  // namespace kelvra::h245
