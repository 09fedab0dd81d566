#pragma once

#include "h245/capabilities/data_protocol.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeDataProtocolCapability(DataProtocolCapability& m, PerReader& r);
void DecodeT84Profile(T84Profile& m, PerReader& r);
void DecodeT38FaxProfile(T38FaxProfile& m, PerReader& r);

}  // namespace kelvra::h245
