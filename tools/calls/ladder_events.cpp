#include "calls/ladder_events.h"

#include <algorithm>

#include "decode/message_text.h"

namespace {

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

size_t LadderColumns::IndexOf(const Endpoint& endpoint) const {
  return static_cast<size_t>(std::find(names.begin(), names.end(), NameOf(endpoint, byPort)) - names.begin());
}

LadderColumns ColumnsOf(const std::vector<LadderEvent>& events) {
  LadderColumns columns;
  columns.byPort = std::all_of(events.begin(), events.end(), [](const LadderEvent& event) {
    return SameHost(event.origin.source, event.origin.destination);
  });
  for (const LadderEvent& event : events) {
    for (const Endpoint& endpoint : {event.origin.source, event.origin.destination}) {
      AddOnce(columns.names, NameOf(endpoint, columns.byPort));
    }
  }
  return columns;
}
