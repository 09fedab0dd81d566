#pragma once

#include "codec/status.h"
#include "h225/ras/info_request_ack.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeInfoRequestAck(InfoRequestAck& m, PerReader& r);
Status DecodeInfoRequestNak(InfoRequestNak& m, PerReader& r);

}  // namespace kelvra::h225
