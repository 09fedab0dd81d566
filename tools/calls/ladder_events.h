// Events between the hosts of a call, in order of time.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calls/call.h"
#include "calls/filter.h"

struct LadderEvent {
  Origin origin;
  std::string label;  // "Setup (setup)"
  std::string fault;  // why the message is incomplete, or why the library refuses it
  bool isMalformed = false;
  const Message* message = nullptr;  // null for a refused connection; the carrier of a tunnelled message
  bool isTunnelled = false;
};

// The messages that pass the filter; tunnelled messages follow their carrier.
std::vector<LadderEvent> LadderEventsOf(const Call& call, const Filter& filter);

// The columns of a ladder: hosts, or ports if there is only one host.
struct LadderColumns {
  std::vector<std::string> names;
  bool byPort = false;

  size_t IndexOf(const Endpoint& endpoint) const;
};
LadderColumns ColumnsOf(const std::vector<LadderEvent>& events);
