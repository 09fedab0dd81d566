// The three families, and the exports of each under the same names.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kelvra/kelvra.h"

namespace kelvra::test {

enum class Family : uint8_t { kRas, kQ931, kH245 };

struct Ras {
  using Record = h225::RasMessageRecord;
  static constexpr Family kFamily = Family::kRas;
  static constexpr const char* kName = "ras";
  static constexpr size_t kSpareOctets = 1;  // after the message, counted in the length
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
  static constexpr size_t kSpareOctets = 0;
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
  static constexpr size_t kSpareOctets = 0;
  static int64_t Decode(Record* record, const uint8_t* octets, size_t size) {
    return KelvraDecodeH245Message(record, octets, static_cast<uint32_t>(size));
  }
  static void Release(Record* record) { KelvraFreeH245Message(record); }
  static bool MayReturn(int64_t result) { return result == 0 || result == 1; }
  static bool MayOwnBlocks(int64_t) { return true; }
};

}  // namespace kelvra::test
