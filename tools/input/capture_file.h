// The packets of pcap files (draft-ietf-opsawg-pcap) and pcapng files (draft-ietf-opsawg-pcapng).
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "input/byte_source.h"

enum class LinkType : uint16_t {
  kNull = 0,
  kEthernet = 1,
  kRawOnLinux = 12,
  kRaw = 101,
  kLoop = 108,
  kLinuxCooked = 113,
  kIpv4 = 228,
  kIpv6 = 229,
  kLinuxCooked2 = 276,
};

struct CapturedPacket {
  LinkType link_type = LinkType::kEthernet;
  int64_t microseconds = 0;         // since 1970-01-01 UTC
  std::span<const uint8_t> octets;  // valid until the next packet is read
  uint32_t length = 0;              // on the wire; the capture may hold less
};

class CaptureFile {
 public:
  // Reads the header. Throws InputError.
  explicit CaptureFile(ByteSource& source);

  // False at the end. Throws InputError if the file cannot be read on.
  bool Next(CapturedPacket& packet);

 private:
  struct Interface {
    LinkType link_type;
    uint32_t longest_packet;  // 0: no limit
    uint64_t units_per_second;
    int64_t offset_seconds;
  };
  struct Block {
    uint32_t type;
    std::span<const uint8_t> body;
  };

  [[noreturn]] void Fail(const std::string& what) const;
  // Throws InputError for an unsupported link type.
  void Require(LinkType link_type) const;
  uint16_t Number16(std::span<const uint8_t> octets, size_t at) const;
  uint32_t Number32(std::span<const uint8_t> octets, size_t at) const;
  // Reads `count` octets; false if the file ends before the first.
  bool Read(size_t count);
  void ReadRest(size_t count);

  void ReadPcapHeader();
  bool NextRecord(CapturedPacket& packet);
  bool NextBlock(Block& block);
  void ReadSectionOrder();
  void AddInterface(std::span<const uint8_t> body);
  void TakeOption(uint16_t code, std::span<const uint8_t> value, Interface& interface) const;
  bool TakePacket(const Block& block, CapturedPacket& packet) const;
  void TakePacket(const Interface& interface, uint64_t time, std::span<const uint8_t> octets, uint32_t length,
                  CapturedPacket& packet) const;

  ByteSource& source_;
  bool is_pcapng_ = false;
  bool big_endian_ = false;
  std::vector<Interface> interfaces_;  // a pcap file has one
  std::vector<uint8_t> octets_;
};
