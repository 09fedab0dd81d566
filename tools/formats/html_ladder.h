// The ladder of a call as SVG.
#pragma once

#include <string>
#include <vector>

#include "calls/ladder_events.h"

// "m3-12" for message 12 of call 3, both from 0.
std::string MessageAnchor(const Call& call, const CallMessage& message);

void AppendSvgLadder(const Call& call, const std::vector<LadderEvent>& events, std::string& html);
