// The IPv4 packets of a capture that come in fragments.
#pragma once

#include <tins/ip.h>
#include <tins/ip_reassembler.h>

#include <list>
#include <tuple>

#include "input/capture.h"

class FragmentedPackets {
 public:
  explicit FragmentedPackets(const CapturePorts& ports) : ports_(ports) {}

  // Returns whether the packet is whole; the last of its fragments makes it so.
  bool Join(Tins::PDU& packet);
  // How many packets that may hold RAS lack a fragment; the gaps of TCP are told by its streams.
  uint64_t Incomplete() const;

 private:
  using Key = std::tuple<uint16_t, Tins::IPv4Address, Tins::IPv4Address>;  // identification, source, destination
  struct Packet {
    Key key;
    size_t fragments = 0;
    bool may_hold_ras = true;
  };
  using Packets = std::list<Packet>;

  Packets::iterator Find(const Key& key);
  void Remember(const Key& key, const Tins::IP& fragment);
  void Forget(Packets::iterator packet);
  void KeepBounds();
  bool MayHoldRas(const Tins::IP& fragment) const;

  const CapturePorts& ports_;
  Tins::IPv4Reassembler reassembler_;
  Packets waiting_;       // longest first
  size_t fragments_ = 0;  // of all that wait
  uint64_t given_up_ = 0;
};
