#pragma once

#include "codec/status.h"
#include "h225/ras/resources_available.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeResourcesAvailableIndicate(ResourcesAvailableIndicate& m, PerReader& r);
Status DecodeResourcesAvailableConfirm(ResourcesAvailableConfirm& m, PerReader& r);

}  // namespace kelvra::h225
