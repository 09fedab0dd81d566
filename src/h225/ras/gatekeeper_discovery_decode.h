#pragma once

#include "codec/status.h"
#include "h225/ras/gatekeeper_discovery.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeGatekeeperRequest(GatekeeperRequest& m, PerReader& r);
Status DecodeGatekeeperConfirm(GatekeeperConfirm& m, PerReader& r);
Status DecodeGatekeeperReject(GatekeeperReject& m, PerReader& r);

}  // namespace kelvra::h225
