#include "calls/call_index.h"

#include <algorithm>
#include <cstring>

namespace {

Endpoint Host(Endpoint endpoint) {
  endpoint.port = 0;
  return endpoint;
}

CallKey OfGuid(CallKey::Kind kind, const Guid& guid) { return {kind, 0, {guid, true, 0}, {}}; }

uint64_t Mixed(uint64_t hash, uint64_t value) {
  constexpr uint64_t golden_ratio = 0x9E3779B97F4A7C15;
  hash = (hash ^ value) * golden_ratio;
  return hash ^ hash >> 32;
}

uint64_t Mixed(uint64_t hash, const Endpoint& endpoint) {
  std::array<uint64_t, 2> halves{};
  static_assert(sizeof halves == sizeof endpoint.address);
  std::memcpy(halves.data(), endpoint.address.data(), sizeof halves);
  return Mixed(Mixed(Mixed(hash, halves[0]), halves[1]), endpoint.port);
}

}  // namespace

CallKey CallKey::Identifier(const Guid& guid) { return OfGuid(Kind::kIdentifier, guid); }

CallKey CallKey::Conference(const Guid& guid) { return OfGuid(Kind::kConference, guid); }

CallKey CallKey::Reference(const Endpoint& host, uint16_t reference) {
  return {Kind::kReference, reference, Host(host), {}};
}

CallKey CallKey::SignallingLeg(const Endpoint& caller, const Endpoint& called, uint16_t reference) {
  return {Kind::kLeg, reference, caller, called};
}

CallKey CallKey::H245Listener(const Endpoint& endpoint) { return {Kind::kH245Listener, 0, endpoint, {}}; }

CallKey CallKey::Connection(const Endpoint& one, const Endpoint& other) {
  return {Kind::kConnection, 0, std::min(one, other), std::max(one, other)};
}

CallKey CallKey::Destination(const Endpoint& host, const Endpoint& destination) {
  return {Kind::kDestination, 0, Host(host), destination};
}

CallKey CallKey::Media(const Endpoint& endpoint) { return {Kind::kMedia, 0, endpoint, {}}; }

CallKey CallKey::Request(const Endpoint& requester, uint16_t sequence) {
  return {Kind::kRequest, sequence, requester, {}};
}

size_t CallKeyHash::operator()(const CallKey& key) const {
  const uint64_t start = Mixed(static_cast<uint64_t>(key.kind), key.number);
  return static_cast<size_t>(Mixed(Mixed(start, key.first), key.second));
}
