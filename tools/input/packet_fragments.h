// Reassembles fragmented IP packets (RFC 791 3.2; RFC 8200 4.5).
#pragma once

#include <cstdint>
#include <list>
#include <map>
#include <optional>
#include <span>
#include <vector>

#include "input/capture.h"

struct Fragment {
  Endpoint source;  // the port is not set
  Endpoint destination;
  uint32_t identification = 0;
  uint8_t protocol = 0;
  uint32_t offset = 0;  // in octets
  bool more = false;    // more fragments follow
  std::span<const uint8_t> octets;
};

class FragmentedPackets {
 public:
  explicit FragmentedPackets(const CapturePorts& ports) : ports_(ports) {}

  // Returns the whole payload once the last fragment has arrived.
  std::optional<std::vector<uint8_t>> Join(const Fragment& fragment);
  // The number of incomplete packets that may hold RAS; streams report the gaps of TCP.
  uint64_t Incomplete() const;

 private:
  struct Packet {
    Fragment first_seen;  // its octets are in `parts`
    std::map<uint32_t, std::vector<uint8_t>> parts;
    std::optional<uint32_t> end;
    size_t fragments = 0;
    bool may_hold_ras = true;
  };
  using Packets = std::list<Packet>;

  Packets::iterator Find(const Fragment& fragment);
  static std::optional<std::vector<uint8_t>> Whole(const Packet& packet);
  void Forget(Packets::iterator packet);
  void KeepBounds();
  bool MayHoldRas(const Fragment& fragment) const;

  const CapturePorts& ports_;
  Packets waiting_;       // oldest first
  size_t fragments_ = 0;  // of all waiting packets
  uint64_t abandoned_ = 0;
};
