#pragma once

#include "h245/channels/data_type.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeRedundancyEncodingMethod(RedundancyEncodingMethod& m, PerReader& r);
void DecodeRedundancyEncoding(RedundancyEncoding& m, PerReader& r);
void DecodeDifferentPort(FECData::Rfc2733::Mode::SeparateStream::DifferentPort& m, PerReader& r);
void DecodeMultiplexedStreamParameter(MultiplexedStreamParameter& m, PerReader& r);
void DecodeDataType(DataType& m, PerReader& r);

}  // namespace kelvra::h245
