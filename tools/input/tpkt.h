// TPKT framing (RFC 1006, 6): packets with a header of 4 octets on a stream.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

constexpr size_t kTpktHeaderOctets = 4;

class TpktFramer {
 public:
  // A packet of fewer octets than `shortest`, header included, shows that the stream is out of step.
  explicit TpktFramer(size_t shortest) : shortest_(shortest) {}

  void Add(std::span<const uint8_t> octets);
  // The next whole packet with its header; nothing when more octets are needed or it is out of step.
  std::optional<std::vector<uint8_t>> Next();

  // The octets at hand start with no header.
  bool OutOfStep() const { return !MayStart(Rest()); }
  // Whether octets may be the first of a packet, as far as they go.
  bool MayStart(std::span<const uint8_t> octets) const;
  // Octets of a packet that is not whole yet.
  size_t Pending() const { return Rest().size(); }
  void Clear();

 private:
  std::span<const uint8_t> Rest() const { return std::span(octets_).subspan(used_); }
  bool StartsWithPacket(std::span<const uint8_t> octets) const;
  // A new vector in place of the old one, which would keep its memory.
  void ReleaseUsed();

  size_t shortest_;
  std::vector<uint8_t> octets_;
  size_t used_ = 0;
};
