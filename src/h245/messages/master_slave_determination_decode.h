#pragma once

#include "h245/messages/master_slave_determination.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeMasterSlaveDetermination(MasterSlaveDetermination& m, PerReader& r);
void DecodeMasterSlaveDeterminationAck(MasterSlaveDeterminationAck& m, PerReader& r);
void DecodeMasterSlaveDeterminationReject(MasterSlaveDeterminationReject& m, PerReader& r);

}  // namespace kelvra::h245
