#pragma once

#include "h245/channels/network_access.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeQ2931Address(Q2931Address& m, PerReader& r);
void DecodeNetworkAccessParameters(NetworkAccessParameters& m, PerReader& r);

}  // namespace kelvra::h245
