#pragma once

#include "codec/status.h"
#include "h225/common/circuits.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeCicInfo(CicInfo& m, PerReader& r);
Status DecodeGroupID(GroupID& m, PerReader& r);
Status DecodeCircuitIdentifier(CircuitIdentifier& m, PerReader& r);
Status DecodeCircuitInfo(CircuitInfo& m, PerReader& r);
Status DecodeCallsAvailable(CallsAvailable& m, PerReader& r);
Status DecodeCallCapacityInfo(CallCapacityInfo& m, PerReader& r);
Status DecodeCallCapacity(CallCapacity& m, PerReader& r);
Status DecodeCapacityReportingCapability(CapacityReportingCapability& m, PerReader& r);
Status DecodeCapacityReportingSpecification(CapacityReportingSpecification& m, PerReader& r);

}  // namespace kelvra::h225
