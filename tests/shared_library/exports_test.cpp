// The six exports as used by a program that knows the library only by its header and record layout.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "api/messages.h"
#include "kelvra/kelvra.h"

namespace kelvra::test {
namespace {

using Octets = std::vector<uint8_t>;

// The 32-bit library has fixed record layouts, on which programs in other languages rely.
constexpr bool kLayoutIsFixed = sizeof(void*) == 4;
constexpr size_t kRasSize = 910;
constexpr size_t kQ931Size = 1750;
constexpr size_t kH245Size = 1861;
constexpr uint8_t kDirt = 0xC7;

// Dirty memory of a fixed size for a record, with a guard after it. Records are longer on other targets.
template <class Record>
class Memory {
 public:
  explicit Memory(size_t size) : size_(kLayoutIsFixed ? size : sizeof(Record)), octets_(size_ + 32, kDirt) {}

  Record* Get() { return reinterpret_cast<Record*>(octets_.data()); }
  template <class Number>
  Number At(size_t offset) const {
    Number number{};
    std::memcpy(&number, octets_.data() + offset, sizeof number);
    return number;
  }
  void ExpectNothingLeft() const {
    EXPECT_EQ(Octets(octets_.end() - 32, octets_.end()), Octets(32, kDirt));
    EXPECT_NE(octets_[size_ - 1], kDirt);
  }

 private:
  size_t size_;
  Octets octets_;
};

TEST(SharedLibrary, DecodesAndReleasesRas) {
  Memory<h225::RasMessageRecord> memory(kRasSize);
  const Octets octets = Hex(kReject);
  const intptr_t end = KelvraDecodeRASMessage(memory.Get(), octets.data(), static_cast<uint32_t>(octets.size()));
  EXPECT_EQ(end, reinterpret_cast<intptr_t>(octets.data() + octets.size()));
  memory.ExpectNothingLeft();
  EXPECT_EQ(memory.At<uint8_t>(0), 2u);
  EXPECT_EQ(memory.At<uint16_t>(1), 33143u);
  EXPECT_EQ(memory.At<uint32_t>(3), 6u);
  const auto* arcs = memory.At<const uint32_t*>(7);
  ASSERT_NE(arcs, nullptr);
  EXPECT_EQ(arcs[3], 2250u);
  for (int i = 0; i < 2; ++i) {
    KelvraFreeRASMessage(memory.Get());
    EXPECT_EQ(memory.At<const uint32_t*>(7), nullptr);
    EXPECT_EQ(memory.At<uint16_t>(1), 33143u);
  }
}

TEST(SharedLibrary, KeepsTheExtensionFlagOfRasLast) {
  Memory<h225::RasMessageRecord> memory(kRasSize);
  const Octets octets = Hex("8902aabb00");
  EXPECT_NE(KelvraDecodeRASMessage(memory.Get(), octets.data(), 5), 0);
  memory.ExpectNothingLeft();
  EXPECT_EQ(memory.At<uint8_t>(0), 9u);
  EXPECT_EQ(memory.At<uint32_t>(kLayoutIsFixed ? 906 : sizeof(h225::RasMessageRecord) - 4), 1u);
  KelvraFreeRASMessage(memory.Get());
}

TEST(SharedLibrary, DecodesAndReleasesQ931) {
  Memory<h225::Q931MessageRecord> memory(kQ931Size);
  const Octets octets =
      Hex("03000032080225eb7d701f813537322a3332373037353338303532363933303534352a2a3834363837357e00050508100100");
  EXPECT_EQ(KelvraDecodeQ931Message(memory.Get(), octets.data(), static_cast<int32_t>(octets.size())), 0);
  memory.ExpectNothingLeft();
  // calledPartyNumber and user information present.
  EXPECT_EQ(memory.At<uint32_t>(0), 0x9u);
  EXPECT_EQ(memory.At<uint8_t>(4), 8u);
  EXPECT_EQ(memory.At<uint8_t>(5), 2u);
  EXPECT_EQ(memory.At<uint16_t>(6), 9707u);
  EXPECT_EQ(memory.At<uint8_t>(8), 125u);
  char number[33];
  for (size_t i = 0; i < sizeof number; ++i) number[i] = memory.At<char>(9 + i);
  ASSERT_EQ(number[32], '\0');
  EXPECT_STREQ(number, "572*327075380526930545**846875");
  // The message body `empty` is the second extension alternative.
  EXPECT_EQ(memory.At<uint8_t>(279), 1u);
  KelvraFreeQ931Message(memory.Get());
  KelvraFreeQ931Message(memory.Get());
  EXPECT_EQ(KelvraDecodeQ931Message(memory.Get(), octets.data(), 65536), -10);
  EXPECT_EQ(memory.At<uint32_t>(0), 0u);
}

TEST(SharedLibrary, DecodesAndReleasesH245) {
  Memory<h245::H245MessageRecord> memory(kH245Size);
  const Octets octets = Hex(kChannel);
  EXPECT_EQ(KelvraDecodeH245Message(memory.Get(), octets.data(), static_cast<uint32_t>(octets.size())), 1);
  memory.ExpectNothingLeft();
  EXPECT_EQ(memory.At<uint32_t>(0), 0u);
  EXPECT_EQ(memory.At<uint8_t>(4), 0u);
  EXPECT_EQ(memory.At<uint32_t>(5), 0u);
  EXPECT_EQ(memory.At<uint8_t>(9), 3u);
  EXPECT_EQ(memory.At<uint16_t>(10), 25168u);
  EXPECT_EQ(memory.At<uint32_t>(12), 1u);
  EXPECT_EQ(memory.At<uint16_t>(16), 33628u);
  KelvraFreeH245Message(memory.Get());
  KelvraFreeH245Message(memory.Get());
  EXPECT_EQ(KelvraDecodeH245Message(memory.Get(), nullptr, 9), -1);
  EXPECT_EQ(memory.At<uint16_t>(10), 25168u);
}

TEST(SharedLibrary, IgnoresNullRecordsOfH225) {
  const Octets octets = Hex(kReject);
  EXPECT_EQ(KelvraDecodeRASMessage(nullptr, octets.data(), 12), 0);
  EXPECT_EQ(KelvraDecodeQ931Message(nullptr, octets.data(), 12), -1);
  EXPECT_EQ(KelvraDecodeH245Message(nullptr, octets.data(), 12), -1);
  KelvraFreeRASMessage(nullptr);
  KelvraFreeQ931Message(nullptr);
}

}  // namespace
}  // namespace kelvra::test
