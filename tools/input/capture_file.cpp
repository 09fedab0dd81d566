#include "input/capture_file.h"

#include <algorithm>
#include <array>

#include "message.h"

namespace {

constexpr uint32_t kMicrosecondsMagic = 0xA1B2C3D4;
constexpr uint32_t kNanosecondsMagic = 0xA1B23C4D;
constexpr uint32_t kByteOrderMagic = 0x1A2B3C4D;
constexpr size_t kPcapHeaderOctets = 24;
constexpr size_t kRecordHeaderOctets = 16;
constexpr uint64_t kMicro = 1'000'000;
constexpr uint64_t kNano = 1'000'000'000;

constexpr uint32_t kSectionHeader = 0x0A0D0D0A;
constexpr uint32_t kInterfaceDescription = 1;
constexpr uint32_t kObsoletePacket = 2;
constexpr uint32_t kSimplePacket = 3;
constexpr uint32_t kEnhancedPacket = 6;
constexpr uint32_t kBlockFrameOctets = 12;  // type and length before the body, and the length again after it

constexpr uint16_t kTimeResolution = 9;
constexpr uint16_t kTimeOffset = 14;

constexpr uint32_t kMostPacketOctets = 0x40000;
constexpr uint32_t kMostBlockOctets = 0x100000;  // for the blocks that are read
constexpr size_t kMostInterfaces = 0x10000;

bool IsSupported(LinkType link_type) {
  static constexpr std::array supported{
      LinkType::kNull,        LinkType::kEthernet, LinkType::kRawOnLinux, LinkType::kRaw,          LinkType::kLoop,
      LinkType::kLinuxCooked, LinkType::kIpv4,     LinkType::kIpv6,       LinkType::kLinuxCooked2,
  };
  return std::find(supported.begin(), supported.end(), link_type) != supported.end();
}

bool IsRead(uint32_t block_type) {
  return block_type == kInterfaceDescription || block_type == kObsoletePacket || block_type == kSimplePacket ||
         block_type == kEnhancedPacket;
}

// 10 (or 2 if the first bit is set) to the power of the other bits; 0 on overflow.
uint64_t UnitsPerSecond(uint8_t resolution) {
  const unsigned exponent = resolution & 0x7FU;
  if ((resolution & 0x80) != 0) return exponent < 64 ? uint64_t{1} << exponent : 0;
  uint64_t units = 1;
  for (unsigned i = 0; i < exponent; ++i) {
    if (units > UINT64_MAX / 10) return 0;
    units *= 10;
  }
  return units;
}

// Modulo 2^64, because a hostile file may contain any time.
int64_t Microseconds(uint64_t time, uint64_t units_per_second, int64_t offset_seconds) {
  const uint64_t fraction = time % units_per_second;
  const uint64_t micro = units_per_second <= kMicro * kMicro ? fraction * kMicro / units_per_second
                                                             : fraction / (units_per_second / kMicro);
  const uint64_t seconds = time / units_per_second + static_cast<uint64_t>(offset_seconds);
  return static_cast<int64_t>(seconds * kMicro + micro);
}

}  // namespace

void CaptureFile::Fail(const std::string& what) const { throw InputError(source_.Name() + ": " + what); }

void CaptureFile::Require(LinkType link_type) const {
  if (IsSupported(link_type)) return;
  Fail("captures of link type " + std::to_string(static_cast<uint16_t>(link_type)) + " are not read");
}

uint16_t CaptureFile::Number16(std::span<const uint8_t> octets, size_t at) const {
  const unsigned first = octets[at];
  const unsigned second = octets[at + 1];
  return static_cast<uint16_t>(big_endian_ ? first << 8 | second : second << 8 | first);
}

uint32_t CaptureFile::Number32(std::span<const uint8_t> octets, size_t at) const {
  const uint32_t first = Number16(octets, at);
  const uint32_t second = Number16(octets, at + 2);
  return big_endian_ ? first << 16 | second : second << 16 | first;
}

bool CaptureFile::Read(size_t count) {
  octets_.resize(count);
  const size_t read = source_.Read(octets_.data(), count);
  if (read == 0 && count > 0) return false;
  if (read < count) Fail("the capture ends within a packet");
  return true;
}

void CaptureFile::ReadRest(size_t count) {
  if (!Read(count) && count > 0) Fail("the capture ends within a packet");
}

CaptureFile::CaptureFile(ByteSource& source) : source_(source) {
  const auto start = source.Peek(4);
  if (start.size() < 4) Fail("neither pcap nor pcapng");
  is_pcapng_ = Number32(start, 0) == kSectionHeader;
  if (!is_pcapng_) ReadPcapHeader();
}

void CaptureFile::ReadPcapHeader() {
  ReadRest(kPcapHeaderOctets);
  const auto is_magic = [this] {
    const uint32_t magic = Number32(octets_, 0);
    return magic == kMicrosecondsMagic || magic == kNanosecondsMagic;
  };
  if (!is_magic()) big_endian_ = true;
  if (!is_magic()) Fail("neither pcap nor pcapng");
  const auto link_type =
      static_cast<LinkType>(Number16(octets_, big_endian_ ? 22 : 20));  // the other bits describe checksums
  Require(link_type);
  const bool nanoseconds = Number32(octets_, 0) == kNanosecondsMagic;
  interfaces_.push_back({link_type, 0, nanoseconds ? kNano : kMicro, 0});
}

bool CaptureFile::Next(CapturedPacket& packet) {
  if (!is_pcapng_) return NextRecord(packet);
  Block block{};
  while (NextBlock(block)) {
    if (block.type == kInterfaceDescription) {
      AddInterface(block.body);
    } else if (TakePacket(block, packet)) {
      return true;
    }
  }
  return false;
}

bool CaptureFile::NextRecord(CapturedPacket& packet) {
  if (!Read(kRecordHeaderOctets)) return false;
  const Interface& interface = interfaces_.front();
  const uint64_t fraction = Number32(octets_, 4);
  const uint32_t captured = Number32(octets_, 8);
  packet.link_type = interface.link_type;
  packet.microseconds =
      static_cast<int64_t>(Number32(octets_, 0) * kMicro + fraction / (interface.units_per_second / kMicro));
  packet.length = Number32(octets_, 12);
  if (captured > kMostPacketOctets) Fail("a packet is longer than any can be");
  ReadRest(captured);
  packet.octets = octets_;
  return true;
}

// The byte order of a section follows the length of its header.
void CaptureFile::ReadSectionOrder() {
  const auto start = source_.Peek(8);
  if (start.size() < 8) Fail("the capture ends within a block");
  big_endian_ = false;
  if (Number32(start, 4) != kByteOrderMagic) big_endian_ = true;
  if (Number32(start, 4) != kByteOrderMagic) Fail("a section has no byte order");
  interfaces_.clear();
}

bool CaptureFile::NextBlock(Block& block) {
  if (!Read(4)) return false;
  block.type = Number32(octets_, 0);
  if (block.type == kSectionHeader) ReadSectionOrder();
  ReadRest(4);
  const uint32_t length = Number32(octets_, 0);
  if (length < kBlockFrameOctets || length % 4 != 0) Fail("a block has a wrong length");
  const uint32_t rest = length - 8;  // body and second length
  block.body = {};
  if (!IsRead(block.type)) {
    if (!source_.Skip(rest)) Fail("the capture ends within a block");
    return true;
  }
  if (length > kMostBlockOctets) Fail("a block is longer than any packet");
  ReadRest(rest);
  if (Number32(octets_, rest - 4) != length) Fail("a block has two lengths");
  block.body = std::span(octets_).first(rest - 4);
  return true;
}

void CaptureFile::AddInterface(std::span<const uint8_t> body) {
  constexpr size_t fixed = 8;
  if (body.size() < fixed) Fail("an interface has no link type");
  if (interfaces_.size() == kMostInterfaces) Fail("there are too many interfaces");
  Interface interface { static_cast<LinkType>(Number16(body, 0)), Number32(body, 4), kMicro, 0 };
  for (size_t at = fixed; body.size() - at >= 4;) {
    const uint16_t code = Number16(body, at);
    const uint16_t size = Number16(body, at + 2);
    at += 4;
    if (code == 0) break;
    if (size > body.size() - at) Fail("an option of an interface is too long");
    TakeOption(code, body.subspan(at, size), interface);
    at = std::min(body.size(), at + (size_t{size} + 3) / 4 * 4);
  }
  interfaces_.push_back(interface);
}

void CaptureFile::TakeOption(uint16_t code, std::span<const uint8_t> value, Interface& interface) const {
  if (code == kTimeResolution && value.size() == 1) {
    interface.units_per_second = UnitsPerSecond(value[0]);
    if (interface.units_per_second == 0) Fail("an interface counts time too finely");
  }
  if (code == kTimeOffset && value.size() == 8) {
    const uint64_t first = Number32(value, 0);
    const uint64_t second = Number32(value, 4);
    interface.offset_seconds = static_cast<int64_t>(big_endian_ ? first << 32 | second : second << 32 | first);
  }
}

bool CaptureFile::TakePacket(const Block& block, CapturedPacket& packet) const {
  const auto body = block.body;
  const bool simple = block.type == kSimplePacket;
  if (!simple && block.type != kEnhancedPacket && block.type != kObsoletePacket) return false;
  const size_t header = simple ? 4 : 20;
  if (body.size() < header) Fail("a block is too short for a packet");
  uint32_t index = 0;
  if (block.type == kEnhancedPacket) index = Number32(body, 0);
  if (block.type == kObsoletePacket) index = Number16(body, 0);
  if (index >= interfaces_.size()) Fail("a packet names no interface");
  const Interface& interface = interfaces_[index];
  const auto octets = body.subspan(header);
  if (!simple) {
    const uint64_t time = uint64_t{Number32(body, 4)} << 32 | Number32(body, 8);
    const uint32_t captured = Number32(body, 12);
    if (captured > octets.size()) Fail("a packet is longer than its block");
    TakePacket(interface, time, octets.first(captured), Number32(body, 16), packet);
    return true;
  }
  const uint32_t length = Number32(body, 0);
  const uint32_t longest = interface.longest_packet == 0 ? length : std::min(length, interface.longest_packet);
  TakePacket(interface, 0, octets.first(std::min<size_t>(longest, octets.size())), length, packet);
  return true;
}

void CaptureFile::TakePacket(const Interface& interface, uint64_t time, std::span<const uint8_t> octets,
                             uint32_t length, CapturedPacket& packet) const {
  Require(interface.link_type);
  packet = {interface.link_type, Microseconds(time, interface.units_per_second, interface.offset_seconds), octets,
            length};
}
