#include "input/packet.h"

#include <algorithm>

#include "input/octet_view.h"

namespace {

constexpr uint16_t kIpv4Type = 0x0800;
constexpr uint16_t kIpv6Type = 0x86DD;

constexpr uint8_t kIpv4InIp = 4;
constexpr uint8_t kIpv6InIp = 41;
// IPv6 extension headers (RFC 8200 4).
constexpr uint8_t kHopByHop = 0;
constexpr uint8_t kRouting = 43;
constexpr uint8_t kFragmentHeader = 44;
constexpr uint8_t kAuthentication = 51;
constexpr uint8_t kDestinationOptions = 60;

bool IsVlan(uint16_t type) { return type == 0x8100 || type == 0x88A8 || type == 0x9100; }

bool IsExtension(uint16_t protocol) {
  return protocol == kHopByHop || protocol == kRouting || protocol == kFragmentHeader || protocol == kAuthentication ||
         protocol == kDestinationOptions;
}

size_t LinkHeaderOctets(LinkType link_type) {
  switch (link_type) {
    case LinkType::kEthernet: return 14;
    case LinkType::kLinuxCooked: return 16;
    case LinkType::kLinuxCooked2: return 20;
    case LinkType::kNull:
    case LinkType::kLoop: return 4;
    default: return 0;
  }
}

// The offset of the EtherType in the link header, for links that have one.
size_t EtherTypeAt(LinkType link_type) {
  switch (link_type) {
    case LinkType::kEthernet: return 12;
    case LinkType::kLinuxCooked: return 14;
    default: return 0;  // of LinkType::kLinuxCooked2
  }
}

bool HasEtherType(LinkType link_type) {
  return link_type == LinkType::kEthernet || link_type == LinkType::kLinuxCooked ||
         link_type == LinkType::kLinuxCooked2;
}

// The octets up to the length in a header; a length of 0 was left for the sender's hardware to fill in.
std::span<const uint8_t> Limited(std::span<const uint8_t> octets, size_t length) {
  return length == 0 ? octets : octets.first(std::min(length, octets.size()));
}

}  // namespace

PacketContent PacketReader::Read(LinkType link_type, std::span<const uint8_t> octets) {
  const size_t header = LinkHeaderOctets(link_type);
  if (octets.size() < header) return PacketContent::kCutOff;
  // The address family in a loopback header differs between systems; the IP version does not.
  if (!HasEtherType(link_type)) return ReadInternet(octets.subspan(header));
  return ReadEthernet({NetworkNumber16(octets, EtherTypeAt(link_type)), octets.subspan(header)});
}

PacketContent PacketReader::ReadEthernet(Layer layer) {
  constexpr size_t tag = 4;
  while (IsVlan(layer.protocol)) {
    if (layer.octets.size() < tag) return PacketContent::kCutOff;
    layer = {NetworkNumber16(layer.octets, 2), layer.octets.subspan(tag)};
  }
  if (layer.protocol != kIpv4Type && layer.protocol != kIpv6Type) return PacketContent::kOther;
  return ReadInternet(layer.octets);
}

PacketContent PacketReader::ReadInternet(std::span<const uint8_t> octets) {
  for (Layer layer{kIpv4InIp, octets};;) {
    if (layer.octets.empty()) return PacketContent::kCutOff;
    const int version = layer.octets[0] >> 4;
    if (version != 4 && version != 6) return PacketContent::kOther;
    if (const auto content = version == 4 ? ReadIpv4(layer) : ReadIpv6(layer)) return *content;
    if (layer.protocol == kTcpProtocol) return ReadTcp(layer.octets);
    if (layer.protocol == kUdpProtocol) return ReadUdp(layer.octets);
    if (layer.protocol != kIpv4InIp && layer.protocol != kIpv6InIp) return PacketContent::kOther;
  }
}

std::optional<PacketContent> PacketReader::ReadIpv4(Layer& layer) {
  constexpr size_t least = 20;
  auto packet = layer.octets;
  if (packet.size() < least) return PacketContent::kCutOff;
  const size_t header = (packet[0] & 0x0F) * size_t{4};
  packet = Limited(packet, NetworkNumber16(packet, 2));
  if (header < least || packet.size() < header) return PacketContent::kCutOff;
  source_ = MakeEndpoint(packet.subspan(12, 4), 0);
  destination_ = MakeEndpoint(packet.subspan(16, 4), 0);
  layer = {packet[9], packet.subspan(header)};
  const uint16_t place = NetworkNumber16(packet, 6);
  const uint32_t offset = (place & 0x1FFFU) * 8;
  const bool more = (place & 0x2000) != 0;
  if (offset == 0 && !more) return std::nullopt;
  return JoinFragments({source_, destination_, NetworkNumber16(packet, 4), packet[9], offset, more, layer.octets},
                       layer);
}

std::optional<PacketContent> PacketReader::ReadIpv6(Layer& layer) {
  constexpr size_t header = 40;
  const auto packet = layer.octets;
  if (packet.size() < header) return PacketContent::kCutOff;
  source_ = MakeEndpoint(packet.subspan(8, 16), 0);
  destination_ = MakeEndpoint(packet.subspan(24, 16), 0);
  layer = {packet[6], Limited(packet.subspan(header), NetworkNumber16(packet, 4))};
  while (IsExtension(layer.protocol)) {
    if (const auto content = ReadExtension(layer)) return content;
  }
  return std::nullopt;
}

std::optional<PacketContent> PacketReader::ReadExtension(Layer& layer) {
  constexpr size_t least = 8;
  const auto extension = layer.octets;
  if (extension.size() < least) return PacketContent::kCutOff;
  if (layer.protocol != kFragmentHeader) {
    const size_t length =
        layer.protocol == kAuthentication ? (extension[1] + size_t{2}) * 4 : (extension[1] + size_t{1}) * 8;
    if (extension.size() < length) return PacketContent::kCutOff;
    layer = {extension[0], extension.subspan(length)};
    return std::nullopt;
  }
  const uint16_t place = NetworkNumber16(extension, 2);
  const uint32_t offset = place & 0xFFF8U;
  const bool more = (place & 1) != 0;
  layer = {extension[0], extension.subspan(least)};
  if (offset == 0 && !more) return std::nullopt;
  return JoinFragments({source_, destination_, NetworkNumber32(extension, 4), extension[0], offset, more, layer.octets},
                       layer);
}

std::optional<PacketContent> PacketReader::JoinFragments(const Fragment& fragment, Layer& layer) {
  auto whole = fragments_.Join(fragment);
  if (!whole) return PacketContent::kFragment;
  whole_ = std::move(*whole);
  layer.octets = whole_;
  return std::nullopt;
}

PacketContent PacketReader::ReadTcp(std::span<const uint8_t> octets) {
  constexpr size_t least = 20;
  if (octets.size() < least) return PacketContent::kCutOff;
  const size_t header = (octets[12] >> 4) * size_t{4};
  if (header < least || octets.size() < header) return PacketContent::kCutOff;
  source_.port = NetworkNumber16(octets, 0);
  destination_.port = NetworkNumber16(octets, 2);
  segment_ = {NetworkNumber32(octets, 4), NetworkNumber32(octets, 8), octets[13], octets.subspan(header)};
  return PacketContent::kTcp;
}

PacketContent PacketReader::ReadUdp(std::span<const uint8_t> octets) {
  constexpr size_t header = 8;
  if (octets.size() < header) return PacketContent::kCutOff;
  source_.port = NetworkNumber16(octets, 0);
  destination_.port = NetworkNumber16(octets, 2);
  const size_t length = NetworkNumber16(octets, 4);
  datagram_ = octets.subspan(header);
  if (length >= header) datagram_ = Limited(octets, length).subspan(header);
  return PacketContent::kUdp;
}
