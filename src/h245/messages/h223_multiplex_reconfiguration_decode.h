#pragma once

#include "h245/messages/h223_multiplex_reconfiguration.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeH223MultiplexReconfiguration(H223MultiplexReconfiguration& m, PerReader& r);

}  // namespace kelvra::h245
