#include <pcap/pcap.h>
#include <tins/dot1q.h>
#include <tins/ethernetII.h>
#include <tins/exceptions.h>
#include <tins/ip.h>
#include <tins/ipv6.h>
#include <tins/rawpdu.h>
#include <tins/sll.h>
#include <tins/udp.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <memory>

#include "input/capture.h"
#include "input/capture_fragments.h"
#include "input/capture_streams.h"

namespace {

constexpr int kCookedV2 = 276;  // LINKTYPE_LINUX_SLL2
constexpr int kVlan = 0x8100;   // the EtherType of IEEE 802.1Q

using Packet = std::unique_ptr<Tins::PDU>;

// Null where the octets hold no Internet protocol.
Packet DissectInternet(std::span<const uint8_t> octets) {
  if (octets.empty()) return nullptr;
  const auto size = static_cast<uint32_t>(octets.size());
  const int version = octets[0] >> 4;
  if (version == 4) return std::make_unique<Tins::IP>(octets.data(), size);
  if (version == 6) return std::make_unique<Tins::IPv6>(octets.data(), size);
  return nullptr;
}

Packet DissectCookedV2(std::span<const uint8_t> octets) {
  constexpr size_t header = 20;
  if (octets.size() < header) return nullptr;
  const int protocol = octets[0] << 8 | octets[1];
  const auto payload = octets.subspan(header);
  if (protocol == kVlan) {
    return std::make_unique<Tins::Dot1Q>(payload.data(), static_cast<uint32_t>(payload.size()));
  }
  return DissectInternet(payload);
}

Packet Dissect(int link_type, std::span<const uint8_t> octets) {
  constexpr size_t loopback_header = 4;
  const auto size = static_cast<uint32_t>(octets.size());
  switch (link_type) {
    case DLT_EN10MB: return std::make_unique<Tins::EthernetII>(octets.data(), size);
    case DLT_LINUX_SLL: return std::make_unique<Tins::SLL>(octets.data(), size);
    case kCookedV2: return DissectCookedV2(octets);
    case DLT_NULL:
    case DLT_LOOP:
      // The address family's number differs from system to system; the version does not.
      return octets.size() < loopback_header ? nullptr : DissectInternet(octets.subspan(loopback_header));
    default: return DissectInternet(octets);
  }
}

bool IsSupported(int link_type) {
  static constexpr std::array supported{DLT_EN10MB, DLT_LINUX_SLL, kCookedV2, DLT_NULL,
                                        DLT_LOOP,   DLT_RAW,       DLT_IPV4,  DLT_IPV6};
  return std::find(supported.begin(), supported.end(), link_type) != supported.end();
}

// Of the addresses of a packet the innermost, in which a tunnel ends.
struct Transport {
  Endpoint source;
  Endpoint destination;
  Tins::TCP* tcp = nullptr;
  const Tins::UDP* udp = nullptr;
};

template <class Address>
Endpoint ToEndpoint(const Address& address) {
  std::vector<uint8_t> octets;
  if constexpr (std::is_same_v<Address, Tins::IPv4Address>) {
    const uint32_t value = address;  // in network order
    octets.resize(sizeof value);
    std::memcpy(octets.data(), &value, sizeof value);
  } else {
    octets.assign(address.begin(), address.end());
  }
  return MakeEndpoint(octets, 0);
}

template <class Layer>
void TakeAddresses(const Layer& layer, Transport& transport) {
  transport.source = ToEndpoint(layer.src_addr());
  transport.destination = ToEndpoint(layer.dst_addr());
}

template <class Layer>
void TakePorts(const Layer& layer, Transport& transport) {
  transport.source.port = layer.sport();
  transport.destination.port = layer.dport();
}

Transport FindTransport(Tins::PDU& packet) {
  Transport found;
  for (Tins::PDU* layer = &packet; layer != nullptr; layer = layer->inner_pdu()) {
    if (const auto* v4 = dynamic_cast<Tins::IP*>(layer)) {
      TakeAddresses(*v4, found);
    } else if (const auto* v6 = dynamic_cast<Tins::IPv6*>(layer)) {
      TakeAddresses(*v6, found);
    } else if (auto* tcp = dynamic_cast<Tins::TCP*>(layer)) {
      TakePorts(*tcp, found);
      found.tcp = tcp;
      break;
    } else if (const auto* udp = dynamic_cast<Tins::UDP*>(layer)) {
      TakePorts(*udp, found);
      found.udp = udp;
      break;
    }
  }
  return found;
}

class PacketReader {
 public:
  PacketReader(int link_type, const CapturePorts& ports, MessageSink& sink)
      : link_type_(link_type), ports_(ports), sink_(sink), streams_(ports, sink), fragments_(ports) {}

  void OnPacket(const pcap_pkthdr& header, const uint8_t* octets) {
    origin_.frame += 1;
    origin_.microseconds = int64_t{header.ts.tv_sec} * 1'000'000 + header.ts.tv_usec;
    const bool may_be_signalling = Take(std::span(octets, header.caplen));
    if (may_be_signalling && header.caplen < header.len) ++cut_off_;
  }
  void Close() {
    streams_.Close();
    TellLoss("packets that lack a fragment: ", fragments_.Incomplete());
    TellLoss("frames cut off by the capture: ", cut_off_);
  }

 private:
  void TellLoss(const char* what, uint64_t count) {
    if (count > 0) sink_.OnLoss(what + std::to_string(count));
  }

  // Returns false where the packet is known to hold no signalling.
  bool Take(std::span<const uint8_t> octets) {
    try {
      const Packet packet = Dissect(link_type_, octets);
      return packet && (!fragments_.Join(*packet) || Distribute(*packet));
    } catch (const Tins::exception_base&) {
      // Not a packet of the Internet protocols, or cut off within their headers.
      return true;
    }
  }

  bool Distribute(Tins::PDU& packet) {
    const Transport transport = FindTransport(packet);
    origin_.source = transport.source;
    origin_.destination = transport.destination;
    if (transport.tcp != nullptr) return streams_.OnSegment(*transport.tcp, origin_);
    return transport.udp != nullptr && OnDatagram(*transport.udp);
  }

  bool OnDatagram(const Tins::UDP& datagram) {
    if (!ports_.AreRas(datagram.sport(), datagram.dport())) return false;
    const auto* payload = datagram.find_pdu<Tins::RawPDU>();
    if (payload != nullptr && !payload->payload().empty()) {
      sink_.OnMessage({Family::kRas, payload->payload(), origin_});
    }
    return true;
  }

  int link_type_;
  const CapturePorts& ports_;
  MessageSink& sink_;
  TcpStreams streams_;
  FragmentedPackets fragments_;
  uint64_t cut_off_ = 0;
  Origin origin_;
};

ssize_t ReadCookie(void* cookie, char* to, size_t count) {
  try {
    return static_cast<ssize_t>(static_cast<ByteSource*>(cookie)->Read(reinterpret_cast<uint8_t*>(to), count));
  } catch (const InputError&) {
    return -1;
  }
}

struct ClosePcap {
  void operator()(pcap_t* capture) const { pcap_close(capture); }
};
using Capture = std::unique_ptr<pcap_t, ClosePcap>;

Capture Open(ByteSource& source) {
  std::FILE* file = fopencookie(&source, "rb", {ReadCookie, nullptr, nullptr, nullptr});
  if (file == nullptr) throw InputError(source.Name() + ": out of memory");
  std::array<char, PCAP_ERRBUF_SIZE> error{};
  Capture capture(pcap_fopen_offline(file, error.data()));
  if (!capture) {
    std::fclose(file);
    throw InputError(source.Name() + ": " + error.data());
  }
  return capture;
}

std::string LinkTypeName(int link_type) {
  const char* name = pcap_datalink_val_to_name(link_type);
  return name != nullptr ? name : std::to_string(link_type);
}

}  // namespace

void ReadCapture(ByteSource& source, const CapturePorts& ports, MessageSink& sink) {
  const Capture capture = Open(source);
  const int link_type = pcap_datalink(capture.get());
  if (!IsSupported(link_type)) {
    throw InputError(source.Name() + ": captures of link type " + LinkTypeName(link_type) + " are not read");
  }
  PacketReader reader(link_type, ports, sink);
  pcap_pkthdr* header = nullptr;
  const u_char* octets = nullptr;
  int status = 0;
  while ((status = pcap_next_ex(capture.get(), &header, &octets)) == 1) {
    reader.OnPacket(*header, octets);
  }
  reader.Close();
  if (status == PCAP_ERROR) throw InputError(source.Name() + ": " + pcap_geterr(capture.get()));
}
