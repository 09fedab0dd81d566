// The facts of a call, grouped for display.
#pragma once

#include <string>
#include <vector>

#include "calls/call.h"
#include "text/time_text.h"

struct Section {
  std::string title;  // "RAS"
  std::vector<std::string> lines;
};

// "call 3  from 5295672 to 9246526"; for other entries, their kind.
std::string Heading(const Call& call);

// Omits empty sections. Times are relative to the start of the call, which is shown in this zone.
std::vector<Section> SectionsOf(const Call& call, TimeZone zone);
