#include "input/tpkt.h"

namespace {

constexpr uint8_t kVersion = 3;

size_t PacketOctets(std::span<const uint8_t> header) { return static_cast<size_t>(header[2] << 8 | header[3]); }

}  // namespace

void TpktFramer::Add(std::span<const uint8_t> octets) { octets_.insert(octets_.end(), octets.begin(), octets.end()); }

std::optional<std::vector<uint8_t>> TpktFramer::Next() {
  const auto rest = Rest();
  if (!StartsWithPacket(rest)) {
    ReleaseUsed();
    return std::nullopt;
  }
  const auto packet = rest.first(PacketOctets(rest));
  used_ += packet.size();
  return std::vector<uint8_t>(packet.begin(), packet.end());
}

bool TpktFramer::StartsWithPacket(std::span<const uint8_t> octets) const {
  return octets.size() >= kTpktHeaderOctets && MayStart(octets) && octets.size() >= PacketOctets(octets);
}

bool TpktFramer::MayStart(std::span<const uint8_t> octets) const {
  if (!octets.empty() && octets[0] != kVersion) return false;
  if (octets.size() < kTpktHeaderOctets) return true;
  const size_t length = PacketOctets(octets);
  // Some equipment sends a bare header to keep the connection alive.
  return length >= shortest_ || length == kTpktHeaderOctets;
}

void TpktFramer::Clear() {
  used_ = octets_.size();
  ReleaseUsed();
}

void TpktFramer::ReleaseUsed() {
  if (used_ == 0) return;
  const auto rest = Rest();
  octets_ = std::vector<uint8_t>(rest.begin(), rest.end());
  used_ = 0;
}
