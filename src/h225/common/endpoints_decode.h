#pragma once

#include "codec/status.h"
#include "h225/common/endpoints.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeAlternateTransportAddresses(AlternateTransportAddresses& m, PerReader& r);
Status DecodeEndpoint(Endpoint& m, PerReader& r);
Status DecodeAlternateGK(AlternateGK& m, PerReader& r);
Status DecodeAltGKInfo(AltGKInfo& m, PerReader& r);

}  // namespace kelvra::h225
