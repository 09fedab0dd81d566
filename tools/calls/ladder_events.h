// What happened between the hosts of a call, in the order of time.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calls/call.h"
#include "calls/filter.h"

struct LadderEvent {
  Origin origin;
  std::string label;  // "Setup (setup)"
  std::string fault;  // of a message that is not complete, or what the library refuses it for
  bool isMalformed = false;
  const Message* message = nullptr;  // null: a connection was refused; of a tunnelled one, that which carries it
  bool isTunnelled = false;
};

// The messages that the filter wants; tunnelled ones follow what carries them.
std::vector<LadderEvent> LadderEventsOf(const Call& call, const Filter& filter);

// The columns of a ladder: hosts, or ports where there is only one host.
struct LadderColumns {
  std::vector<std::string> names;
  bool byPort = false;

  size_t IndexOf(const Endpoint& endpoint) const;
};
LadderColumns ColumnsOf(const std::vector<LadderEvent>& events);
