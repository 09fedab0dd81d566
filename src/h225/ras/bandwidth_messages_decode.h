#pragma once

#include "codec/status.h"
#include "h225/ras/bandwidth_messages.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeBandwidthRequest(BandwidthRequest& m, PerReader& r);
Status DecodeBandwidthConfirm(BandwidthConfirm& m, PerReader& r);
Status DecodeBandwidthReject(BandwidthReject& m, PerReader& r);

}  // namespace kelvra::h225
