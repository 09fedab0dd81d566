#pragma once

#include "h245/common/transport_address.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeUnicastAddress(UnicastAddress& m, PerReader& r);
void DecodeTransportAddress(TransportAddress& m, PerReader& r);

}  // namespace kelvra::h245
