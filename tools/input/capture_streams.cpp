#include "input/capture_streams.h"

namespace {

constexpr size_t kMostAddresses = 4096;
constexpr size_t kMostDirections = 8192;
constexpr size_t kMostHeldOctets = 0x4000000;

}  // namespace

std::vector<Announced> AnnouncedAddresses::OnMessage(const Message& message) {
  std::vector<Announced> announced = sink_.OnMessage(message);
  for (const auto& [endpoint, family] : announced) {
    if (!known_.insert_or_assign(endpoint, family).second) continue;
    oldest_first_.push_back(endpoint);
    if (oldest_first_.size() > kMostAddresses) {
      known_.erase(oldest_first_.front());
      oldest_first_.pop_front();
    }
  }
  return announced;
}

std::optional<Family> AnnouncedAddresses::FamilyOf(const Endpoint& endpoint) const {
  const auto found = known_.find(endpoint);
  return found == known_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<Family> TcpStreams::FamilyOf(const Origin& origin) const {
  const auto uses = [&origin](const std::set<uint16_t>& ports) {
    return ports.contains(origin.source.port) || ports.contains(origin.destination.port);
  };
  if (uses(ports_.call_signalling)) return Family::kQ931;
  if (const auto family = addresses_.FamilyOf(origin.destination)) return family;
  if (const auto family = addresses_.FamilyOf(origin.source)) return family;
  if (uses(ports_.h245)) return Family::kH245;
  return std::nullopt;
}

bool TcpStreams::OnSegment(Tins::TCP& segment, const Origin& origin) {
  const auto family = FamilyOf(origin);
  if (!family) return false;
  const Key key(origin.source, origin.destination);
  const auto known = index_.find(key);
  if (known != index_.end() && known->second->direction.IsNewConnection(segment)) {
    Remove(known->second);
  }
  Join(key, *family, segment, false);
  if ((segment.flags() & Tins::TCP::ACK) != 0) {
    Join({origin.destination, origin.source}, *family, segment, true);
  }

  const auto entry = index_.at(key);
  entries_.splice(entries_.end(), entries_, entry);
  held_ -= entry->held;
  entry->direction.OnSegment(segment, origin);
  entry->held = entry->direction.HeldOctets();
  held_ += entry->held;
  KeepBounds();
  return true;
}

void TcpStreams::Join(const Key& key, Family family, const Tins::TCP& segment, bool opposite) {
  if (index_.contains(key)) return;
  entries_.push_back({key, TcpDirection(family, segment, opposite, addresses_), 0});
  index_[key] = std::prev(entries_.end());
}

void TcpStreams::Remove(Entries::iterator entry) {
  entry->direction.Close();
  held_ -= entry->held;
  index_.erase(entry->key);
  entries_.erase(entry);
}

void TcpStreams::KeepBounds() {
  while (entries_.size() > kMostDirections || held_ > kMostHeldOctets) Remove(entries_.begin());
}

void TcpStreams::Close() {
  while (!entries_.empty()) Remove(entries_.begin());
}
