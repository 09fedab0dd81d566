#pragma once

#include "h245/channels/multiplex_parameters.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeH222LogicalChannelParameters(H222LogicalChannelParameters& m, PerReader& r);
void DecodeH223AnnexCArqParameters(H223AnnexCArqParameters& m, PerReader& r);
void DecodeH223AL1MParameters(H223AL1MParameters& m, PerReader& r);
void DecodeH223AL2MParameters(H223AL2MParameters& m, PerReader& r);
void DecodeH223AL3MParameters(H223AL3MParameters& m, PerReader& r);
void DecodeH223LogicalChannelParameters(H223LogicalChannelParameters& m, PerReader& r);
void DecodeV76HDLCParameters(V76HDLCParameters& m, PerReader& r);
void DecodeV75Parameters(V75Parameters& m, PerReader& r);
void DecodeV76LogicalChannelParameters(V76LogicalChannelParameters& m, PerReader& r);

}  // namespace kelvra::h245
