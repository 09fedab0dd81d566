#pragma once

#include "h245/common/non_standard.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeNonStandardIdentifier(NonStandardIdentifier& m, PerReader& r);
// The octets of the parameter, behind its identifier.
void DecodeNonStandardData(NonStandardParameter& m, PerReader& r);
void DecodeNonStandardParameter(NonStandardParameter& m, PerReader& r);

}  // namespace kelvra::h245
