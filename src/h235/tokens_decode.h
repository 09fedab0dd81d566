#pragma once

#include "codec/status.h"
#include "h235/tokens.h"
#include "per/reader.h"

namespace kelvra::h235 {

Status DecodeNonStandardParameter(NonStandardParameter& m, PerReader& r);
Status DecodeAuthenticationMechanism(AuthenticationMechanism& m, PerReader& r);
Status DecodeClearToken(ClearToken& m, PerReader& r);
Status DecodeSIGNED(SIGNED& m, PerReader& r);
Status DecodeENCRYPTED(ENCRYPTED& m, PerReader& r);
Status DecodeHASHED(HASHED& m, PerReader& r);
Status DecodeCryptoToken(CryptoToken& m, PerReader& r);

}  // namespace kelvra::h235
