// The facts of a call, sorted for a person.
#pragma once

#include <string>
#include <vector>

#include "calls/call.h"

struct Section {
  std::string title;  // "RAS"
  std::vector<std::string> lines;
};

// "call 3  from 5295672 to 9246526"; outside calls, what it is.
std::string Heading(const Call& call);

// Those with lines only. Times count from the beginning of the call.
std::vector<Section> SectionsOf(const Call& call);
