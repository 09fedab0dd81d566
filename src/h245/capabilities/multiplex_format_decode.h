#pragma once

#include "h245/capabilities/multiplex_format.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeH222Capability(H222Capability& m, PerReader& r);
void DecodeH223Capability(H223Capability& m, PerReader& r);
void DecodeMultiplexFormat(MultiplexFormat& m, PerReader& r);

}  // namespace kelvra::h245
