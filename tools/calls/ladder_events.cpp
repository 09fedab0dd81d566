#include "calls/ladder_events.h"

#include <algorithm>

#include "decode/message_text.h"

namespace {

// Columns with a name of their own.
constexpr size_t kMostNamed = 63;

void AddMessage(const Message& message, const DecodedMessage& decoded, bool is_tunnelled,
                std::vector<LadderEvent>& events) {
  LadderEvent event;
  event.origin = message.origin.value_or(Origin());
  event.label = MessageTitle(decoded);
  event.fault = FaultText(decoded);
  event.isMalformed = !decoded.IsComplete();
  event.message = &message;
  event.isTunnelled = is_tunnelled;
  events.push_back(std::move(event));
  for (const DecodedMessage& tunnelled : decoded.tunnelled) AddMessage(message, tunnelled, true, events);
}

std::string NameOf(const Endpoint& endpoint, bool by_port) {
  const std::string text = ToText(endpoint);
  return by_port ? text : text.substr(0, text.rfind(':'));
}

}  // namespace

std::vector<LadderEvent> LadderEventsOf(const Call& call, const Filter& filter) {
  std::vector<LadderEvent> events;
  for (const Message& message : call.messages) {
    const DecodedMessage decoded = DecodeMessage(message.family, message.octets);
    if (filter.WantsMessage(message, decoded)) AddMessage(message, decoded, false, events);
  }
  for (const Origin& refused : call.refusedConnections) {
    if (filter.WantsConnection(refused)) events.push_back({refused, "connection refused", {}, false, nullptr, false});
  }
  std::stable_sort(events.begin(), events.end(), [](const LadderEvent& a, const LadderEvent& b) {
    return a.origin.microseconds < b.origin.microseconds;
  });
  return events;
}

LadderColumns::LadderColumns(const std::vector<LadderEvent>& events)
    : by_port_(std::all_of(events.begin(), events.end(), [](const LadderEvent& event) {
        return SameHost(event.origin.source, event.origin.destination);
      })) {
  for (const LadderEvent& event : events) {
    for (const Endpoint& endpoint : {event.origin.source, event.origin.destination}) {
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
