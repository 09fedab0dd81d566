#include "input/tcp_order.h"

#include <utility>

namespace {

// Approximate memory that the map needs for a segment in addition to its octets.
constexpr size_t kOverhead = 96;

}  // namespace

void TcpOrder::Add(uint32_t sequence, std::span<const uint8_t> payload) {
  if (payload.empty()) return;
  const int64_t position = PositionOf(sequence);
  if (position <= next_) {
    Deliver(position, payload);
    DeliverWaiting();
    return;
  }
  auto& held = waiting_[position];
  if (held.empty()) held_ += kOverhead;
  if (held.size() >= payload.size()) return;
  held_ += payload.size() - held.size();
  held.insert(held.end(), payload.begin() + static_cast<std::ptrdiff_t>(held.size()), payload.end());
}

void TcpOrder::Deliver(int64_t position, std::span<const uint8_t> payload) {
  const auto end = position + static_cast<int64_t>(payload.size());
  if (end <= next_) return;
  const auto fresh = payload.subspan(static_cast<size_t>(next_ - position));
  ready_.insert(ready_.end(), fresh.begin(), fresh.end());
  next_ = end;
}

void TcpOrder::DeliverWaiting() {
  while (!waiting_.empty() && waiting_.begin()->first <= next_) {
    const auto segment = waiting_.extract(waiting_.begin());
    held_ -= segment.mapped().size() + kOverhead;
    Deliver(segment.key(), segment.mapped());
  }
}

std::vector<uint8_t> TcpOrder::TakeReady() { return std::exchange(ready_, {}); }

void TcpOrder::SkipTo(int64_t position) {
  while (!waiting_.empty() && waiting_.begin()->first < position) {
    held_ -= waiting_.begin()->second.size() + kOverhead;
    waiting_.erase(waiting_.begin());
  }
  next_ = position;
  DeliverWaiting();
}

void TcpOrder::DropWaiting() {
  waiting_.clear();
  held_ = 0;
}
