#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

#include "api/kelvra.h"
#include "api/messages.h"
#include "record_json.h"

namespace kelvra::test {
namespace {

// The result and the record as JSON, by which one decode is compared with another.
template <class Record>
std::string Describe(Record& record, int64_t result) {
  return std::to_string(result) + RecordToJson(record).dump();
}

std::string DecodeRas(const std::vector<uint8_t>& octets) {
  h225::RasMessageRecord record;
  const intptr_t end = KelvraDecodeRASMessage(&record, octets.data(), static_cast<uint32_t>(octets.size()));
  std::string text = Describe(record, end == 0 ? 0 : end - reinterpret_cast<intptr_t>(octets.data()));
  KelvraFreeRASMessage(&record);
  return text;
}

std::string DecodeQ931(const std::vector<uint8_t>& octets) {
  h225::Q931MessageRecord record;
  const int32_t result = KelvraDecodeQ931Message(&record, octets.data(), static_cast<int32_t>(octets.size()));
  std::string text = Describe(record, result);
  KelvraFreeQ931Message(&record);
  return text;
}

std::string DecodeH245(const std::vector<uint8_t>& octets) {
  h245::H245MessageRecord record;
  const int32_t result = KelvraDecodeH245Message(&record, octets.data(), static_cast<uint32_t>(octets.size()));
  std::string text = Describe(record, result);
  KelvraFreeH245Message(&record);
  return text;
}

struct Message {
  std::string (*decode)(const std::vector<uint8_t>&);
  std::vector<uint8_t> octets;
};

TEST(Threads, DecodeAllFamiliesAtOnceAsTheyDoAlone) {
  // Most of them carry extension additions, whose bookkeeping must be each decode's own.
  std::vector<Message> messages = {
      {DecodeRas, Hex(kReject)},
      {DecodeRas, Hex(kRejectWithFeatures)},
      {DecodeRas, Hex(kConfirmWithBlocks)},
      {DecodeQ931, Hex(kProceeding)},
      {DecodeQ931, Hex(kEmptyWithBlocks)},
      {DecodeH245, Hex(kChannel)},
      {DecodeH245, Hex(kChannelWithBlocks)},
  };
  for (Message& message : messages) {
    if (message.decode == DecodeRas) message.octets.push_back(0);
  }
  std::vector<std::string> alone;
  for (const Message& message : messages) alone.push_back(message.decode(message.octets));
  for (size_t i = 0; i < alone.size(); ++i) EXPECT_EQ(std::count(alone.begin(), alone.end(), alone[i]), 1) << alone[i];

  constexpr size_t kThreads = 4;
  constexpr size_t kRounds = 500;
  std::vector<size_t> differences(kThreads, 0);
  std::vector<std::thread> threads;
  for (size_t thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      for (size_t round = 0; round < kRounds; ++round) {
        for (size_t i = 0; i < messages.size(); ++i) {
          // Each thread starts elsewhere in the row.
          const size_t which = (i + thread * 2) % messages.size();
          if (messages[which].decode(messages[which].octets) != alone[which]) ++differences[thread];
        }
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(differences, std::vector<size_t>(kThreads, 0));
}

}  // namespace
}  // namespace kelvra::test
