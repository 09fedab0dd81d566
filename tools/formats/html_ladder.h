// The ladder of a call as SVG.
#pragma once

#include <string>
#include <vector>

#include "calls/ladder_events.h"

// "m3-12": the 12th message of call 3.
std::string MessageAnchor(const Call& call, size_t index);

void AppendSvgLadder(const Call& call, const std::vector<LadderEvent>& events, std::string& html);
