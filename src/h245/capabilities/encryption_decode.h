#pragma once

#include "h245/capabilities/encryption.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeEncryptionMode(EncryptionMode& m, PerReader& r);
void DecodeEncryptionAuthenticationAndIntegrity(EncryptionAuthenticationAndIntegrity& m, PerReader& r);
void DecodeH235SecurityCapability(H235SecurityCapability& m, PerReader& r);
void DecodeEncryptionSync(EncryptionSync& m, PerReader& r);

}  // namespace kelvra::h245
