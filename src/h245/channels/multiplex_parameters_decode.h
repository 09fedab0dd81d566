#pragma once

#include "h245/channels/multiplex_parameters.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeH222LogicalChannelParameters(H222LogicalChannelParameters& m, PerReader& r);
void DecodeH223LogicalChannelParameters(H223LogicalChannelParameters& m, PerReader& r);
void DecodeV76LogicalChannelParameters(V76LogicalChannelParameters& m, PerReader& r);

}  // namespace kelvra::h245
