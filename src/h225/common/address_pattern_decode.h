#pragma once

#include "codec/status.h"
#include "h225/common/address_pattern.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeAddressPattern(AddressPattern& m, PerReader& r);

}  // namespace kelvra::h225
