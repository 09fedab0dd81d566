#pragma once

#include "codec/status.h"
#include "h225/common/endpoint_type.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeVendorIdentifier(VendorIdentifier& m, PerReader& r);
Status DecodeDataRate(DataRate& m, PerReader& r);
Status DecodeSupportedPrefix(SupportedPrefix& m, PerReader& r);
Status DecodeSupportedProtocols(SupportedProtocols& m, PerReader& r);
Status DecodeGatewayInfo(GatewayInfo& m, PerReader& r);
Status DecodeMcuInfo(McuInfo& m, PerReader& r);
Status DecodeTunnelledProtocol(TunnelledProtocol& m, PerReader& r);
Status DecodeEndpointType(EndpointType& m, PerReader& r);

}  // namespace kelvra::h225
