#pragma once

#include "h245/messages/encryption_command.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeEncryptionCommand(EncryptionCommand& m, PerReader& r);

}  // namespace kelvra::h245
