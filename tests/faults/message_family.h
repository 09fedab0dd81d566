// Decode and release under the same names for each family, for tests that cover all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "faults/message_corpus.h"
#include "faults/record_digest.h"
#include "kelvra/kelvra.h"

namespace kelvra::test {

struct Ras {
  using Record = h225::RasMessageRecord;
  static constexpr Family kFamily = Family::kRas;
  static constexpr const char* kName = "ras";
  static int64_t Decode(Record* record, const uint8_t* octets, size_t size) {
    const intptr_t end = KelvraDecodeRASMessage(record, octets, static_cast<uint32_t>(size));
    return end == 0 ? 0 : end - reinterpret_cast<intptr_t>(octets);
  }
  static void Release(Record* record) { KelvraFreeRASMessage(record); }
  static bool MayReturn(int64_t result) { return result >= 0; }
  // True if a decode with this result may leave blocks to release.
  static bool MayOwnBlocks(int64_t result) { return result != 0; }
};

struct Q931 {
  using Record = h225::Q931MessageRecord;
  static constexpr Family kFamily = Family::kQ931;
  static constexpr const char* kName = "q931";
  static int64_t Decode(Record* record, const uint8_t* octets, size_t size) {
    return KelvraDecodeQ931Message(record, octets, static_cast<int32_t>(size));
  }
  static void Release(Record* record) { KelvraFreeQ931Message(record); }
  static bool MayReturn(int64_t result) { return result == 0 || result == -1; }
  static bool MayOwnBlocks(int64_t result) { return result == 0; }
};

struct H245 {
  using Record = h245::H245MessageRecord;
  static constexpr Family kFamily = Family::kH245;
  static constexpr const char* kName = "h245";
  static int64_t Decode(Record* record, const uint8_t* octets, size_t size) {
    return KelvraDecodeH245Message(record, octets, static_cast<uint32_t>(size));
  }
  static void Release(Record* record) { KelvraFreeH245Message(record); }
  static bool MayReturn(int64_t result) { return result == 0 || result == 1; }
  static bool MayOwnBlocks(int64_t) { return true; }
};

// A digest of the result, the record and what is left after the release.
template <class MessageFamily>
uint64_t DigestOf(const std::vector<uint8_t>& octets) {
  typename MessageFamily::Record record;
  Digest digest;
  digest.AddWord(static_cast<uint64_t>(MessageFamily::Decode(&record, octets.data(), octets.size())));
  BlocksOf(record).AddTo(digest, &record, sizeof record);
  MessageFamily::Release(&record);
  digest.AddWord(BlocksOf(record).Blocks().size());
  return digest.Value();
}

}  // namespace kelvra::test
