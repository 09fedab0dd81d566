#pragma once

#include "h245/messages/miscellaneous.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeMiscellaneousCommand(MiscellaneousCommand& m, PerReader& r);
void DecodeMiscellaneousIndication(MiscellaneousIndication& m, PerReader& r);

}  // namespace kelvra::h245
