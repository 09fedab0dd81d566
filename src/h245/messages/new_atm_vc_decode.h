#pragma once

#include "h245/messages/new_atm_vc.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeNewATMVCCommand(NewATMVCCommand& m, PerReader& r);
void DecodeNewATMVCIndication(NewATMVCIndication& m, PerReader& r);

}  // namespace kelvra::h245
