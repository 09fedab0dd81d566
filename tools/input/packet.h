// Finds the TCP or UDP payload of a captured packet.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "input/capture_file.h"
#include "input/packet_fragments.h"

// IP protocol numbers.
constexpr uint8_t kTcpProtocol = 6;
constexpr uint8_t kUdpProtocol = 17;

struct TcpSegment {
  static constexpr uint8_t kFin = 1;
  static constexpr uint8_t kSyn = 2;
  static constexpr uint8_t kRst = 4;
  static constexpr uint8_t kAck = 16;

  bool Has(uint8_t flag) const { return (flags & flag) != 0; }

  uint32_t sequence = 0;
  uint32_t acknowledgement = 0;
  uint8_t flags = 0;
  std::span<const uint8_t> payload;
};

enum class PacketContent : uint8_t {
  kOther,     // neither TCP nor UDP
  kCutOff,    // or wrong, in the headers
  kFragment,  // waits for other fragments
  kTcp,
  kUdp,
};

class PacketReader {
 public:
  explicit PacketReader(const CapturePorts& ports) : fragments_(ports) {}

  // The results remain valid until the next packet is read.
  PacketContent Read(LinkType link_type, std::span<const uint8_t> octets);

  // The addresses of the innermost packet, inside any tunnel.
  const Endpoint& Source() const { return source_; }
  const Endpoint& Destination() const { return destination_; }
  const TcpSegment& Segment() const { return segment_; }
  std::span<const uint8_t> Datagram() const { return datagram_; }
  const FragmentedPackets& Fragments() const { return fragments_; }

 private:
  // A protocol layer, and what follows it.
  struct Layer {
    uint16_t protocol = 0;
    std::span<const uint8_t> octets;
  };

  PacketContent ReadEthernet(Layer layer);
  PacketContent ReadInternet(std::span<const uint8_t> octets);
  // These leave the payload in `layer`, or return the final kind of the packet.
  std::optional<PacketContent> ReadIpv4(Layer& layer);
  std::optional<PacketContent> ReadIpv6(Layer& layer);
  std::optional<PacketContent> ReadExtension(Layer& layer);
  std::optional<PacketContent> JoinFragments(const Fragment& fragment, Layer& layer);
  PacketContent ReadTcp(std::span<const uint8_t> octets);
  PacketContent ReadUdp(std::span<const uint8_t> octets);

  FragmentedPackets fragments_;
  std::vector<uint8_t> whole_;  // the packet last reassembled
  Endpoint source_;
  Endpoint destination_;
  TcpSegment segment_;
  std::span<const uint8_t> datagram_;
};
