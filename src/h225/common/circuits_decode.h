#pragma once

#include "codec/status.h"
#include "h225/common/circuits.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeCircuitInfo(CircuitInfo& m, PerReader& r);
Status DecodeCallCapacity(CallCapacity& m, PerReader& r);
Status DecodeCapacityReportingCapability(CapacityReportingCapability& m, PerReader& r);
Status DecodeCapacityReportingSpecification(CapacityReportingSpecification& m, PerReader& r);

}  // namespace kelvra::h225
