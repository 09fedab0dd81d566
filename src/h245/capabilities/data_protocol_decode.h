#pragma once

#include "h245/capabilities/data_protocol.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeV42bis(V42bis& m, PerReader& r);
void DecodeCompressionType(CompressionType& m, PerReader& r);
void DecodeDataProtocolCapability(DataProtocolCapability& m, PerReader& r);
void DecodeT84Profile(T84Profile& m, PerReader& r);
void DecodeT38FaxUdpOptions(T38FaxUdpOptions& m, PerReader& r);
void DecodeT38FaxTcpOptions(T38FaxTcpOptions& m, PerReader& r);
void DecodeT38FaxProfile(T38FaxProfile& m, PerReader& r);

}  // namespace kelvra::h245
