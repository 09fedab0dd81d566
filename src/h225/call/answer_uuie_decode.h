#pragma once

#include "codec/status.h"
#include "h225/call/answer_uuie.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeCallProceedingUUIE(CallProceedingUUIE& m, PerReader& r);
Status DecodeProgressUUIE(ProgressUUIE& m, PerReader& r);
Status DecodeAlertingUUIE(AlertingUUIE& m, PerReader& r);
Status DecodeConnectUUIE(ConnectUUIE& m, PerReader& r);

}  // namespace kelvra::h225
