#pragma once

#include "codec/status.h"
#include "h225/common/bandwidth.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeTransportChannelInfo(TransportChannelInfo& m, PerReader& r);
Status DecodeBandwidthDetails(BandwidthDetails& m, PerReader& r);
Status DecodeRTPSession(RTPSession& m, PerReader& r);

}  // namespace kelvra::h225
