#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

#include "api/kelvra.h"
#include "api/messages.h"

namespace kelvra::test {
namespace {

// Writes down all that a record holds, its blocks included.
class Transcript {
 public:
  void Number(const char* name, int64_t value) { Add(name, std::to_string(value)); }
  void Boolean(const char* name, uint32_t value) { Number(name, value); }
  void EnumeratedValue(uint32_t value, const char*) { Number("value", value); }
  void Null(const char* name) { Add(name, "null"); }
  void UnknownExtension(uint32_t index) { Number("extension", index); }
  void UnknownRoot(uint32_t index) { Number("root", index); }
  template <class Value>
  void ObjectIdentifier(const char* name, Value& value) {
    Numbers(name, KELVRA_COUNTED_LIST(value.count, value.arcs));
  }
  template <class Value>
  void Characters16(const char* name, Value& value) {
    Numbers(name, KELVRA_COUNTED_LIST(value.length, value.data));
  }
  void Octets(const char* name, Slot<uint8_t> slot, uint32_t count, OctetNotation notation) {
    const bool bits = notation == OctetNotation::kBits || notation == OctetNotation::kFixedBits;
    const uint8_t* octets = slot.Get();
    if (octets == nullptr) return Null(name);
    Embedded(name, octets, bits ? (count + 7) / 8 : count, notation);
  }
  void Embedded(const char* name, const uint8_t* octets, uint32_t count, OctetNotation) {
    Add(name, std::string(octets, octets + count));
  }
  template <class R>
  void Record(const char* name, R& record) {
    Add(name, "{");
    R::Walk(record, *this);
    text_ += '}';
  }
  template <class R>
  void Pointer(const char* name, Slot<R> slot) {
    if (R* record = slot.Get()) Record(name, *record);
  }
  template <class L>
  void List(const char* name, L list) {
    if (list.begin() == nullptr) return Null(name);
    for (auto& element : list) Record(name, element);
  }
  template <class L>
  void OctetStrings(const char* name, L list, OctetNotation notation) {
    for (auto& value : list) Octets(name, KELVRA_SLOT(value.data), value.length, notation);
  }
  template <class L>
  void FixedOctetStrings(const char* name, L list, uint32_t size) {
    for (auto& value : list) Octets(name, KELVRA_SLOT(value.data), size, OctetNotation::kOctets);
  }
  template <class L>
  void ObjectIdentifiers(const char* name, L list) {
    for (auto& value : list) ObjectIdentifier(name, value);
  }
  template <class L>
  void Numbers(const char* name, L list) {
    if (list.begin() == nullptr) return Null(name);
    for (const auto number : list) Number(name, number);
  }

  const std::string& Text() const { return text_; }

 private:
  void Add(const char* name, const std::string& value) { text_.append(name).append(" ").append(value).append("\n"); }

  std::string text_;
};

template <class Record>
std::string Describe(Record& record, int64_t result) {
  Transcript transcript;
  transcript.Number("result", result);
  Record::Walk(record, transcript);
  return transcript.Text();
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
