// Events between the hosts of a call, in order of time.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "calls/call.h"
#include "calls/filter.h"

// Points into the call.
struct LadderEvent {
  const Origin* origin = nullptr;
  std::string_view label;  // "Setup (setup)"
  std::string_view fault;  // as in MessageLine
  bool isMalformed = false;
  const CallMessage* message = nullptr;  // null for a refused connection; the carrier of a tunnelled message
  bool isTunnelled = false;
};

// The messages that the call has kept, each followed by those that it tunnels, and the refused connections that the
// filter wants.
std::vector<LadderEvent> LadderEventsOf(const Call& call, const Filter& filter);

// The columns of a ladder: hosts, or ports if there is only one host. The last of too many columns stands for all
// others.
class LadderColumns {
 public:
  explicit LadderColumns(const std::vector<LadderEvent>& events);

  const std::vector<std::string>& Names() const { return names_; }
  size_t IndexOf(const Endpoint& endpoint) const;

 private:
  Endpoint KeyOf(Endpoint endpoint) const;

  bool by_port_;
  std::vector<std::string> names_;
  std::map<Endpoint, size_t> indices_;
};
