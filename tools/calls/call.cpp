#include "calls/call.h"

#include <algorithm>

namespace {

std::optional<int64_t> Between(const std::optional<int64_t>& from, const std::optional<int64_t>& to) {
  if (!from || !to) return std::nullopt;
  return *to - *from;
}

}  // namespace

std::optional<int64_t> RasTransaction::ResponseTime() const {
  if (request.empty() || answer.empty()) return std::nullopt;
  return answered - requested;
}

std::optional<int64_t> Leg::AlertingTime() const { return Between(setup, alerting); }

std::optional<int64_t> Leg::SetupTime() const { return Between(setup, connected); }

std::optional<int64_t> Leg::Duration() const { return Between(connected, released); }

void AddMediaAddress(Call& call, const Endpoint& address, bool is_receiver) {
  const auto known = std::find_if(call.media.begin(), call.media.end(),
                                  [&address](const MediaAddress& media) { return media.address == address; });
  MediaAddress& media = known == call.media.end() ? call.media.emplace_back() : *known;
  media.address = address;
  media.isReceiver = media.isReceiver || is_receiver;
}
