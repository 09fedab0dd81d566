#pragma once

#include "codec/status.h"
#include "h225/call/release_complete_uuie.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeReleaseCompleteReason(ReleaseCompleteReason& m, PerReader& r);
Status DecodeCallTerminationCause(CallTerminationCause& m, PerReader& r);
Status DecodeReleaseCompleteUUIE(ReleaseCompleteUUIE& m, PerReader& r);

}  // namespace kelvra::h225
