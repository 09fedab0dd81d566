#pragma once

#include "h245/channels/data_type.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeRTPH263VideoRedundancyFrameMapping(RTPH263VideoRedundancyFrameMapping& m, PerReader& r);
void DecodeRTPH263VideoRedundancyEncoding(RTPH263VideoRedundancyEncoding& m, PerReader& r);
void DecodeRedundancyEncodingMethod(RedundancyEncodingMethod& m, PerReader& r);
void DecodeRedundancyEncodingElement(RedundancyEncodingElement& m, PerReader& r);
void DecodeRedundancyEncoding(RedundancyEncoding& m, PerReader& r);
void DecodeMultiplePayloadStream(MultiplePayloadStream& m, PerReader& r);
void DecodeDifferentPort(FECData::Rfc2733::Mode::SeparateStream::DifferentPort& m, PerReader& r);
void DecodeFECData(FECData& m, PerReader& r);
void DecodeMultiplexedStreamParameter(MultiplexedStreamParameter& m, PerReader& r);
void DecodeH235Media(H235Media& m, PerReader& r);
void DecodeDataType(DataType& m, PerReader& r);

}  // namespace kelvra::h245
