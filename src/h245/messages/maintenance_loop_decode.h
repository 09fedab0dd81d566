#pragma once

#include "h245/messages/maintenance_loop.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeMaintenanceLoop(MaintenanceLoop& m, PerReader& r);
void DecodeMaintenanceLoopReject(MaintenanceLoopReject& m, PerReader& r);

}  // namespace kelvra::h245
