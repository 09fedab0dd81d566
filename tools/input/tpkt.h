// TPKT framing (RFC 1006 6): packets with a 4-octet header on a stream.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

constexpr size_t kTpktHeaderOctets = 4;

class TpktFramer {
 public:
  // A packet shorter than `shortest`, including the header, shows that the stream is out of step.
  explicit TpktFramer(size_t shortest) : shortest_(shortest) {}

  void Add(std::span<const uint8_t> octets);
  // The next whole packet with its header; empty if more octets are needed or the stream is out of step.
  std::optional<std::vector<uint8_t>> Next();

  // True if the octets do not start with a header.
  bool OutOfStep() const { return !MayStart(Rest()); }
  // True if the octets may be the start of a packet.
  bool MayStart(std::span<const uint8_t> octets) const;
  // The octets of a packet that is not complete yet.
  size_t Pending() const { return Rest().size(); }
  void Clear();

 private:
  std::span<const uint8_t> Rest() const { return std::span(octets_).subspan(used_); }
  bool StartsWithPacket(std::span<const uint8_t> octets) const;
  // Replaces the vector, since clearing it would keep its memory.
  void ReleaseUsed();

  size_t shortest_;
  std::vector<uint8_t> octets_;
  size_t used_ = 0;
};
