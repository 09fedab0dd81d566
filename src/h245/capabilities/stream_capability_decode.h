#pragma once

#include "h245/capabilities/stream_capability.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeAlternativeCapabilitySet(AlternativeCapabilitySet& m, PerReader& r);
void DecodeMultiplexedStreamCapability(MultiplexedStreamCapability& m, PerReader& r);
void DecodeMultiplePayloadStreamCapability(MultiplePayloadStreamCapability& m, PerReader& r);
void DecodeFECCapability(FECCapability& m, PerReader& r);

}  // namespace kelvra::h245
