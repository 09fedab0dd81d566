// Input that is no message.
#include "faults/fault_test.h"

namespace kelvra::test {
namespace {

using HostileInputTest = FaultTest;

constexpr Family kFamilies[] = {Family::kRas, Family::kQ931, Family::kH245};

std::vector<const Message*> MessagesOf(Family family) {
  std::vector<const Message*> messages;
  for (const Message& message : Corpus()) {
    if (message.family == family) messages.push_back(&message);
  }
  return messages;
}

// The first octets of a message, which take the decoder to the hostile ones.
std::vector<uint8_t> StartOf(const Message& message, size_t size) {
  return {message.octets.begin(), message.octets.begin() + static_cast<ptrdiff_t>(size)};
}

TEST_F(HostileInputTest, BuffersOfOneOctetRepeated) {
  for (const Family family : kFamilies) {
    const std::vector<const Message*> messages = MessagesOf(family);
    for (uint32_t value = 0; value < 256; ++value) {
      const Message& message = *messages[value % messages.size()];
      for (const size_t start : {size_t{0}, message.octets.size() / 2}) {
        std::vector<uint8_t> octets = StartOf(message, start);
        octets.resize(0x2000, static_cast<uint8_t>(value));
        ExpectSafe(family, octets, message.name + ", then octets " + std::to_string(value));
      }
    }
  }
}

TEST_F(HostileInputTest, BuffersOfNoise) {
  uint32_t state = 0x2545F491;
  const auto next = [&] {  // xorshift, the same on every run
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    return state >> 8;
  };
  for (const Family family : kFamilies) {
    const std::vector<const Message*> messages = MessagesOf(family);
    for (uint32_t round = 0; round < 1500; ++round) {
      const Message& message = *messages[round % messages.size()];
      std::vector<uint8_t> octets = StartOf(message, next() % message.octets.size());
      for (const size_t size = octets.size() + 300; octets.size() < size;) {
        octets.push_back(static_cast<uint8_t>(next()));
      }
      ExpectSafe(family, octets, message.name + ", then noise " + std::to_string(round));
    }
  }
}

// A negative length claims 16 bits' worth of octets, but there are none.
TEST_F(HostileInputTest, ANegativeLengthOfQ931LeavesTheBufferAlone) {
  const ExactBuffer nothing({});
  h225::Q931MessageRecord record;
  EXPECT_EQ(KelvraDecodeQ931Message(&record, nothing.Data(), -1), -1);
  EXPECT_EQ(KelvraDecodeQ931Message(&record, nothing.Data(), -65536), -10);
  EXPECT_EQ(heap_.Requests(), 0U);
}

}  // namespace
}  // namespace kelvra::test
