#include "input/tcp_streams.h"

namespace {

constexpr size_t kMostAddresses = 4096;
constexpr size_t kMostDirections = 8192;
constexpr size_t kMostReported = 8;
constexpr size_t kMostHeldOctets = 0x4000000;

}  // namespace

std::vector<Announced> AnnouncedAddresses::OnMessage(const Message& message) {
  if (message.origin) {
    for (const Endpoint& endpoint : {message.origin->source, message.origin->destination}) {
      if (Use* use = Find(endpoint)) use->recognised = true;
    }
  }
  std::vector<Announced> announced = sink_.OnMessage(message);
  for (const auto& [endpoint, family] : announced) {
    const auto [known, is_new] = known_.try_emplace(endpoint);
    known->second.family = family;
    if (!is_new) continue;
    oldest_first_.push_back(endpoint);
    if (oldest_first_.size() > kMostAddresses) {
      known_.erase(oldest_first_.front());
      oldest_first_.pop_front();
    }
  }
  return announced;
}

AnnouncedAddresses::Use* AnnouncedAddresses::Find(const Endpoint& endpoint) {
  const auto found = known_.find(endpoint);
  return found == known_.end() ? nullptr : &found->second;
}

void AnnouncedAddresses::Close() {
  size_t reported = 0;
  for (const auto& [endpoint, use] : known_) {
    if (use.segments == 0 || use.recognised) continue;
    if (++reported > kMostReported) continue;
    sink_.OnNotice("no message was recognised at " + ToText(endpoint) + ", which was announced for " +
                   (use.family == Family::kH245 ? "H.245" : "call signalling") +
                   "; segments: " + std::to_string(use.segments));
  }
  if (reported > kMostReported) {
    sink_.OnNotice("nor at further announced addresses: " + std::to_string(reported - kMostReported));
  }
}

std::optional<Family> TcpStreams::FamilyOf(const Origin& origin) {
  const auto uses = [&origin](const std::set<uint16_t>& ports) {
    return ports.contains(origin.source.port) || ports.contains(origin.destination.port);
  };
  if (uses(ports_.call_signalling)) return Family::kQ931;
  for (const Endpoint& endpoint : {origin.destination, origin.source}) {
    if (const auto* use = addresses_.Find(endpoint)) return use->family;
  }
  if (uses(ports_.h245)) return Family::kH245;
  return std::nullopt;
}

bool TcpStreams::OnSegment(const TcpSegment& segment, const Origin& origin) {
  const auto family = FamilyOf(origin);
  if (!family) return false;
  const Key key(origin.source, origin.destination);
  const auto known = index_.find(key);
  if (known != index_.end() && known->second->direction.IsNewConnection(segment)) {
    Remove(known->second);
  }
  OnAnswer(segment, origin);
  Join(key, *family, segment, false);
  if (segment.Has(TcpSegment::kAck)) {
    Join({origin.destination, origin.source}, *family, segment, true);
  }

  const auto entry = index_.at(key);
  entries_.splice(entries_.end(), entries_, entry);
  held_ -= entry->held;
  entry->direction.OnSegment(segment, origin);
  entry->held = entry->direction.HeldOctets();
  held_ += entry->held;
  CountSegment(segment, origin);
  KeepBounds();
  return true;
}

void TcpStreams::OnAnswer(const TcpSegment& segment, const Origin& origin) {
  const auto opened = index_.find({origin.destination, origin.source});
  if (opened == index_.end() || !std::exchange(opened->second->awaits_answer, false)) return;
  if (!segment.Has(TcpSegment::kRst)) return;
  sink_.OnRefusedConnection({origin.frame, origin.microseconds, origin.destination, origin.source});
}

void TcpStreams::CountSegment(const TcpSegment& segment, const Origin& origin) {
  if (segment.payload.empty()) return;
  for (const Endpoint& endpoint : {origin.source, origin.destination}) {
    if (auto* use = addresses_.Find(endpoint)) ++use->segments;
  }
}

void TcpStreams::Join(const Key& key, Family family, const TcpSegment& segment, bool opposite) {
  if (index_.contains(key)) return;
  const bool opens = !opposite && segment.Has(TcpSegment::kSyn) && !segment.Has(TcpSegment::kAck);
  entries_.push_back({key, TcpDirection(family, segment, opposite, addresses_), 0, opens});
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

void TcpStreams::CloseAll() {
  while (!entries_.empty()) Remove(entries_.begin());
}

void TcpStreams::Close() {
  CloseAll();
  addresses_.Close();
}
