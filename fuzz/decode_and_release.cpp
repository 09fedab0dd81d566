#include "decode_and_release.h"

#include <stdio.h>
#include <stdlib.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <numeric>

#include "faults/record_digest.h"
#include "h225/call/q931_frame.h"
#include "kelvra/kelvra.h"

namespace kelvra::fuzz {
namespace {

void Require(bool kept, const char* promise) {
  if (kept) return;
  fprintf(stderr, "broken promise: %s\n", promise);
  abort();
}

// The message in a block of exactly its size, and a dirty record in another.
template <class Record>
class Decode {
 public:
  Decode(const uint8_t* octets, size_t size)
      : octets_(std::make_unique<uint8_t[]>(size)), record_(static_cast<Record*>(malloc(sizeof(Record)))) {
    Require(record_ != nullptr, "the fuzzer has memory for a record");
    std::copy_n(octets, size, octets_.get());
    std::fill_n(reinterpret_cast<uint8_t*>(record_), sizeof(Record), uint8_t{0xA5});
  }
  ~Decode() { free(record_); }
  Decode(const Decode&) = delete;
  Decode& operator=(const Decode&) = delete;

  const uint8_t* Octets() const { return octets_.get(); }
  Record* Get() { return record_; }

  // `released` means that a refusal has already released the blocks.
  template <class Release>
  void ReadAndRelease(bool released, Release release) {
    Require(!released || ReadBlocks() == 0, "a refused message leaves no block");
    release(record_);
    Require(ReadBlocks() == 0, "a release leaves no pointer");
    release(record_);
  }

 private:
  // The number of blocks. Reads each as far as its count reaches, so that a sanitizer sees one that is too small or
  // freed.
  size_t ReadBlocks() {
    const test::RecordBlocks blocks = test::BlocksOf(*record_);
    volatile uint8_t read = 0;
    for (const auto& [address, size] : blocks.Blocks()) {
      const auto* octets = static_cast<const uint8_t*>(address);
      read = std::accumulate(octets, octets + size, uint8_t{0}, std::bit_xor<>());
    }
    static_cast<void>(read);
    return blocks.Blocks().size();
  }

  std::unique_ptr<uint8_t[]> octets_;
  Record* record_;
};

}  // namespace

void DecodeAndReleaseRas(const uint8_t* octets, size_t size) {
  Decode<h225::RasMessageRecord> decode(octets, size);
  const intptr_t end = KelvraDecodeRASMessage(decode.Get(), decode.Octets(), static_cast<uint32_t>(size));
  // The address can be past the buffer if a message ends with skipped open types.
  Require(end == 0 || end > reinterpret_cast<intptr_t>(decode.Octets()), "the end of a message lies past its start");
  decode.ReadAndRelease(end == 0, KelvraFreeRASMessage);
}

void DecodeAndReleaseQ931(const uint8_t* octets, size_t size) {
  Decode<h225::Q931MessageRecord> decode(octets, size);
  const int32_t result = KelvraDecodeQ931Message(decode.Get(), decode.Octets(), static_cast<int32_t>(size));
  Require(result == h225::kQ931Decoded || result == h225::kQ931Rejected || result == h225::kQ931BadArgument,
          "a Q.931 result is one of three");
  decode.ReadAndRelease(result != h225::kQ931Decoded, KelvraFreeQ931Message);
}

void DecodeAndReleaseH245(const uint8_t* octets, size_t size) {
  Decode<h245::H245MessageRecord> decode(octets, size);
  const int32_t result = KelvraDecodeH245Message(decode.Get(), decode.Octets(), static_cast<uint32_t>(size));
  Require(result == 0 || result == 1, "an H.245 result is one of two");
  decode.ReadAndRelease(false, KelvraFreeH245Message);
}

}  // namespace kelvra::fuzz
