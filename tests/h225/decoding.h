// Shared by the decoder tests: records that release themselves, and values that many messages carry.
#pragma once

#include <string>
#include <vector>

#include "codec/memory.h"
#include "codec/status.h"
#include "per/bit_writer.h"
#include "per/decoder.h"
#include "per/input.h"
#include "record/release.h"

namespace kelvra::test {

inline constexpr uint32_t kMarker = 0x5A;

// The octets so far, then the marker.
inline std::vector<uint8_t> Marked(BitWriter writer) { return writer.Octets({kMarker}); }

// A zeroed record that releases its blocks.
template <class R>
class Owned {
 public:
  Owned() { CodecFill(&record_, 0, sizeof record_); }
  ~Owned() {
    // A CHOICE of NULLs has no blocks, and no release of its own.
    if constexpr (!kIsNullChoice<R>) Release(record_, ReleaseVisitor("test"));
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  R& operator*() { return record_; }
  R* operator->() { return &record_; }

 private:
  R record_;
};

// Decodes an H.245 type, whose failures are not reported.
template <class R>
void DecodeH245(R& record, PerReader& reader) {
  static_cast<void>(Decode(record, reader));
}

inline std::vector<uint8_t> OctetsAt(const uint8_t* octets, uint32_t count) {
  return octets == nullptr ? std::vector<uint8_t>() : std::vector<uint8_t>(octets, octets + count);
}
inline std::vector<uint8_t> OctetsOf(const OctetStringValue& value) { return OctetsAt(value.data, value.length); }
inline std::string TextOf(const OctetStringValue& value) {
  const std::vector<uint8_t> octets = OctetsOf(value);
  return {octets.begin(), octets.end()};
}

// `count` octets that count up from `first`.
inline std::vector<uint8_t> Rising(uint8_t first, uint32_t count) {
  std::vector<uint8_t> octets;
  for (uint32_t i = 0; i < count; ++i) octets.push_back(static_cast<uint8_t>(first + i));
  return octets;
}

// { itu-t recommendation h 2250 version `version` }, version below 128.
inline std::vector<uint8_t> ProtocolIdentifier(uint8_t version) { return {0x00, 0x08, 0x91, 0x4A, 0x00, version}; }

// An empty H.225.0 EndpointType.
inline BitWriter& EmptyEndpointType(BitWriter& writer) { return writer.Bits(0, 9); }

// An H.225.0 TransportAddress: ipAddress 10.1.2.`host`.
inline BitWriter& IpAddress(BitWriter& writer, uint8_t host, uint16_t port) {
  return writer.Bits(0, 4).Octets({10, 1, 2, host}).Bits(port, 16);
}

// The extension additions of a SEQUENCE: the bitmap, most significant bit first, then the open types.
inline BitWriter& Additions(BitWriter& writer, uint64_t bitmap, uint32_t count) {
  return writer.NormallySmall(count - 1).Bits(bitmap, count);
}

// The bit of addition `index` in a bitmap of `count`.
constexpr uint64_t Addition(uint32_t index, uint32_t count) { return uint64_t{1} << (count - 1 - index); }

}  // namespace kelvra::test
