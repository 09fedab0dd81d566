#include "input/capture_fragments.h"

#include <tins/constants.h>
#include <tins/rawpdu.h>

#include <algorithm>

namespace {

constexpr size_t kMostFragments = 1024;

}  // namespace

bool FragmentedPackets::Join(Tins::PDU& packet) {
  const auto status = reassembler_.process(packet);
  if (status == Tins::IPv4Reassembler::NOT_FRAGMENTED) return true;
  const auto& ip = packet.rfind_pdu<Tins::IP>();
  const Key key(ip.id(), ip.src_addr(), ip.dst_addr());
  if (status == Tins::IPv4Reassembler::REASSEMBLED) {
    Forget(Find(key));
    return true;
  }
  Remember(key, ip);
  KeepBounds();
  return false;
}

uint64_t FragmentedPackets::Incomplete() const {
  const auto may_hold_ras = [](const Packet& packet) { return packet.may_hold_ras; };
  return given_up_ + static_cast<uint64_t>(std::count_if(waiting_.begin(), waiting_.end(), may_hold_ras));
}

FragmentedPackets::Packets::iterator FragmentedPackets::Find(const Key& key) {
  return std::find_if(waiting_.begin(), waiting_.end(), [&key](const Packet& packet) { return packet.key == key; });
}

void FragmentedPackets::Remember(const Key& key, const Tins::IP& fragment) {
  auto packet = Find(key);
  if (packet == waiting_.end()) packet = waiting_.insert(packet, {.key = key});
  ++packet->fragments;
  ++fragments_;
  packet->may_hold_ras = packet->may_hold_ras && MayHoldRas(fragment);
}

void FragmentedPackets::Forget(Packets::iterator packet) {
  if (packet == waiting_.end()) return;
  fragments_ -= packet->fragments;
  waiting_.erase(packet);
}

void FragmentedPackets::KeepBounds() {
  while (fragments_ > kMostFragments) {
    const auto oldest = waiting_.begin();
    given_up_ += oldest->may_hold_ras ? 1 : 0;
    std::apply([this](auto&&... key) { reassembler_.remove_stream(key...); }, oldest->key);
    Forget(oldest);
  }
}

bool FragmentedPackets::MayHoldRas(const Tins::IP& fragment) const {
  if (fragment.protocol() != Tins::Constants::IP::PROTO_UDP) return false;
  const auto* part = fragment.find_pdu<Tins::RawPDU>();
  constexpr size_t both_ports = 4;
  if (fragment.fragment_offset() > 0 || part == nullptr || part->payload().size() < both_ports) return true;
  const auto& octets = part->payload();
  const auto port = [&octets](size_t at) { return static_cast<uint16_t>(octets[at] << 8 | octets[at + 1]); };
  return ports_.AreRas(port(0), port(2));
}
