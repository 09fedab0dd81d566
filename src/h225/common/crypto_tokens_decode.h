#pragma once

#include "codec/status.h"
#include "h225/common/crypto_tokens.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeIntegrityMechanism(IntegrityMechanism& m, PerReader& r);
Status DecodeICV(ICV& m, PerReader& r);
Status DecodeCryptoH323Token(CryptoH323Token& m, PerReader& r);
Status DecodeH245Security(H245Security& m, PerReader& r);

}  // namespace kelvra::h225
