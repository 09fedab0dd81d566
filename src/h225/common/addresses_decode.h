#pragma once

#include "codec/status.h"
#include "h225/common/addresses.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeTransportAddress(TransportAddress& m, PerReader& r);
Status DecodePublicPartyNumber(PublicPartyNumber& m, PerReader& r);
Status DecodePrivatePartyNumber(PrivatePartyNumber& m, PerReader& r);
Status DecodePartyNumber(PartyNumber& m, PerReader& r);
Status DecodeANSI41UIM(ANSI41UIM& m, PerReader& r);
Status DecodeGSMUIM(GSMUIM& m, PerReader& r);
Status DecodeMobileUIM(MobileUIM& m, PerReader& r);
Status DecodeAliasAddress(AliasAddress& m, PerReader& r);
Status DecodeExtendedAliasAddress(ExtendedAliasAddress& m, PerReader& r);

}  // namespace kelvra::h225
