#include "calls/call.h"

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

const MediaAddress* Call::FindMedia(const Endpoint& address) const {
  for (const MediaAddress& known : media) {
    if (known.address == address) return &known;
  }
  return nullptr;
}

void AddMediaAddress(Call& call, const Endpoint& address) {
  if (call.FindMedia(address) == nullptr) call.media.push_back({address, {}});
}
