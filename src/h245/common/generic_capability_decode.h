#pragma once

#include "h245/common/generic_capability.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeCapabilityIdentifier(CapabilityIdentifier& m, PerReader& r);
void DecodeParameterValue(ParameterValue& m, PerReader& r);
void DecodeGenericParameter(GenericParameter& m, PerReader& r);
void DecodeGenericCapability(GenericCapability& m, PerReader& r);

}  // namespace kelvra::h245
