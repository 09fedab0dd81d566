#include "input/packet_fragments.h"

#include <algorithm>

#include "input/octet_view.h"
#include "input/packet.h"

namespace {

constexpr size_t kMostFragments = 1024;

bool AreOfOnePacket(const Fragment& one, const Fragment& other) {
  return one.identification == other.identification && one.protocol == other.protocol && one.source == other.source &&
         one.destination == other.destination;
}

}  // namespace

std::optional<std::vector<uint8_t>> FragmentedPackets::Join(const Fragment& fragment) {
  auto packet = Find(fragment);
  if (packet == waiting_.end()) packet = waiting_.insert(packet, {.first_seen = fragment, .parts = {}, .end = {}});
  ++packet->fragments;
  ++fragments_;
  packet->may_hold_ras = packet->may_hold_ras && MayHoldRas(fragment);
  packet->parts.try_emplace(fragment.offset, fragment.octets.begin(), fragment.octets.end());
  if (!fragment.more) packet->end = fragment.offset + static_cast<uint32_t>(fragment.octets.size());
  auto whole = Whole(*packet);
  if (whole) Forget(packet);
  KeepBounds();
  return whole;
}

// Where fragments overlap, the octets of the nearer one count.
std::optional<std::vector<uint8_t>> FragmentedPackets::Whole(const Packet& packet) {
  if (!packet.end) return std::nullopt;
  std::vector<uint8_t> whole;
  for (const auto& [offset, octets] : packet.parts) {
    if (offset > whole.size()) return std::nullopt;
    const size_t known = std::min(whole.size() - offset, octets.size());
    whole.insert(whole.end(), octets.begin() + static_cast<std::ptrdiff_t>(known), octets.end());
  }
  if (whole.size() < *packet.end) return std::nullopt;
  whole.resize(*packet.end);
  return whole;
}

uint64_t FragmentedPackets::Incomplete() const {
  const auto may_hold_ras = [](const Packet& packet) { return packet.may_hold_ras; };
  return abandoned_ + static_cast<uint64_t>(std::count_if(waiting_.begin(), waiting_.end(), may_hold_ras));
}

FragmentedPackets::Packets::iterator FragmentedPackets::Find(const Fragment& fragment) {
  return std::find_if(waiting_.begin(), waiting_.end(),
                      [&fragment](const Packet& packet) { return AreOfOnePacket(packet.first_seen, fragment); });
}

void FragmentedPackets::Forget(Packets::iterator packet) {
  fragments_ -= packet->fragments;
  waiting_.erase(packet);
}

void FragmentedPackets::KeepBounds() {
  while (fragments_ > kMostFragments) {
    abandoned_ += waiting_.front().may_hold_ras ? 1 : 0;
    Forget(waiting_.begin());
  }
}

bool FragmentedPackets::MayHoldRas(const Fragment& fragment) const {
  if (fragment.protocol != kUdpProtocol) return false;
  constexpr size_t both_ports = 4;
  if (fragment.offset > 0 || fragment.octets.size() < both_ports) return true;
  return ports_.AreRas(NetworkNumber16(fragment.octets, 0), NetworkNumber16(fragment.octets, 2));
}
