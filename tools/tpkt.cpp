#include "tpkt.h"

namespace {

constexpr uint8_t kVersion = 3;

size_t PacketOctets(std::span<const uint8_t> header) { return static_cast<size_t>(header[2] << 8 | header[3]); }

}  // namespace

void TpktFramer::Add(std::span<const uint8_t> octets) {
  octets_.erase(octets_.begin(), octets_.begin() + static_cast<std::ptrdiff_t>(used_));
  used_ = 0;
  octets_.insert(octets_.end(), octets.begin(), octets.end());
}

std::optional<std::vector<uint8_t>> TpktFramer::Next() {
  const auto rest = Rest();
  if (rest.size() < kTpktHeaderOctets || !MayStart(rest)) return std::nullopt;
  const size_t length = PacketOctets(rest);
  if (rest.size() < length) return std::nullopt;
  used_ += length;
  return std::vector<uint8_t>(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(length));
}

bool TpktFramer::MayStart(std::span<const uint8_t> octets) const {
  if (!octets.empty() && octets[0] != kVersion) return false;
  if (octets.size() < kTpktHeaderOctets) return true;
  const size_t length = PacketOctets(octets);
  // Equipment sends the header alone to keep a connection alive.
  return length >= shortest_ || length == kTpktHeaderOctets;
}

void TpktFramer::Clear() {
  octets_.clear();
  used_ = 0;
}
