#pragma once

#include "codec/status.h"
#include "h225/common/services.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeQseriesOptions(QseriesOptions& m, PerReader& r);
Status DecodeCallLinkage(CallLinkage& m, PerReader& r);
Status DecodeCallCreditCapability(CallCreditCapability& m, PerReader& r);
Status DecodeServiceControlSession(ServiceControlSession& m, PerReader& r);

}  // namespace kelvra::h225
