#include "calls/ladder_events.h"

#include <algorithm>

namespace {

// Columns with a name of their own.
constexpr size_t kMostNamed = 63;

void AddMessage(const CallMessage& message, std::vector<LadderEvent>& events) {
  static const Origin kNone;
  const Origin& origin = message.message.origin ? *message.message.origin : kNone;
  for (const MessageLine& line : message.lines) {
    const bool is_tunnelled = &line != &message.lines.front();
    events.push_back({&origin, line.title, line.fault, line.isMalformed, &message, is_tunnelled});
  }
}

std::string NameOf(const Endpoint& endpoint, bool by_port) {
  const std::string text = ToText(endpoint);
  return by_port ? text : text.substr(0, text.rfind(':'));
}

}  // namespace

std::vector<LadderEvent> LadderEventsOf(const Call& call, const Filter& filter) {
  std::vector<LadderEvent> events;
  for (const CallMessage& message : call.messages) AddMessage(message, events);
  for (const Origin& refused : call.refusedConnections) {
    if (filter.WantsConnection(refused)) events.push_back({&refused, "connection refused", {}, false, nullptr, false});
  }
  std::stable_sort(events.begin(), events.end(), [](const LadderEvent& a, const LadderEvent& b) {
    return a.origin->microseconds < b.origin->microseconds;
  });
  return events;
}

LadderColumns::LadderColumns(const std::vector<LadderEvent>& events)
    : by_port_(std::all_of(events.begin(), events.end(), [](const LadderEvent& event) {
        return SameHost(event.origin->source, event.origin->destination);
      })) {
  for (const LadderEvent& event : events) {
    for (const Endpoint& endpoint : {event.origin->source, event.origin->destination}) {
      if (names_.size() > kMostNamed) return;
      const bool is_new = indices_.emplace(KeyOf(endpoint), names_.size()).second;
      if (is_new) names_.push_back(names_.size() < kMostNamed ? NameOf(endpoint, by_port_) : "others");
    }
  }
}

size_t LadderColumns::IndexOf(const Endpoint& endpoint) const {
  const auto known = indices_.find(KeyOf(endpoint));
  return known == indices_.end() ? kMostNamed : known->second;
}

Endpoint LadderColumns::KeyOf(Endpoint endpoint) const {
  if (!by_port_) endpoint.port = 0;
  return endpoint;
}
