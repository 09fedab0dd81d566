// Input made to exhaust: nesting, memory, time.
#include <algorithm>
#include <memory>

#include "faults/channel_writer.h"
#include "faults/fault_test.h"
#include "per/reader.h"

namespace kelvra::test {
namespace {

using HostileInputTest = FaultTest;

// The value of the innermost parameter, or 0 where the lists end before it.
uint32_t InnermostValue(const DecodedMessage& message) {
  const auto& dataType = message.H245().request.openLogicalChannel.forwardLogicalChannelParameters.dataType;
  const h245::GenericCapability& capability = dataType.audioData.genericAudioCapability;
  auto parameters = ListAt<uint8_t, h245::GenericParameter*>(&capability.collapsingCount, &capability.collapsing);
  while (true) {
    if (parameters.begin() == nullptr) return 0;
    const h245::ParameterValue& value = parameters.begin()->parameterValue;
    if (value.choiceTag == 2) return value.unsignedMin;
    parameters = ListOf(value.genericParameter);
  }
}

// An openLogicalChannel whose audio capability holds `levels` GenericParameters within each other.
std::vector<uint8_t> ChannelWithParameters(uint32_t levels) {
  BitWriter capability;
  capability.Bits(0b001000, 6);                   // collapsing alone
  capability.Bits(0b000, 3).OpenType({0x2A, 3});  // capabilityIdentifier: standard
  for (uint32_t level = 1; level <= levels; ++level) {
    capability.Length(1);                            // one element
    capability.Bits(0b00, 2);                        // without supersedes
    capability.Bits(0b000, 3).Bits(level, 7);        // parameterIdentifier: standard
    if (level < levels) capability.Bits(0b0111, 4);  // genericParameter
  }
  capability.Bits(0b0010, 4).Align().Bits(0x1234, 16);  // unsignedMin
  return OpenLogicalChannelMessage([&](BitWriter& message) {
    message.Bits(0b0011, 4).Bit(true).NormallySmall(6).OpenType(capability);  // genericAudioCapability
  });
}

TEST_F(HostileInputTest, GenericParametersNestToTheMaximumDepth) {
  // The DataType around them is the first level.
  for (const uint32_t levels : {kMaximumDepth - 1, kMaximumDepth, 100U}) {
    heap_.Reset();
    DecodedMessage message(Family::kH245, ChannelWithParameters(levels));
    EXPECT_EQ(message.Result(), 1) << levels;
    EXPECT_EQ(InnermostValue(message), levels < kMaximumDepth ? 0x1234U : 0U) << levels;
    // A list a level, up to the one whose element is too deep, and the capabilityIdentifier.
    EXPECT_EQ(heap_.Granted().size(), 1 + std::min(levels, kMaximumDepth)) << levels;
    ExpectOwnership(Family::kH245, message, "nested parameters");
    ExpectCleanRelease(message, "nested parameters");
  }
}

// A multiplePayloadStream of 255 elements, each of which is again a multiplePayloadStream: the length
// of each open type leads from behind one element back to the start of the next level.
TEST_F(HostileInputTest, ElementsReadOverAndOverStayWithinTheAllowance) {
  BitWriter stream;
  for (uint32_t i = 0; i < 2000; ++i) {
    stream.Bits(0, 1).Align().Length(255);            // 255 elements
    stream.Bits(0b00, 2).Bit(true).NormallySmall(4);  // of which the first holds a multiplePayloadStream
    stream.Align().Length(3);                         // that ends where its own first element starts
  }
  const std::vector<uint8_t> octets =
      OpenLogicalChannelMessage([&](BitWriter& message) { message.Bit(true).NormallySmall(4).OpenType(stream); });
  DecodedMessage message(Family::kH245, octets);
  // What is refused is at most one more block at each level.
  EXPECT_LE(heap_.OctetsGranted(), kMaximumMessageMemory);
  EXPECT_GT(heap_.OctetsGranted(), kMaximumMessageMemory / 2);
  EXPECT_EQ(heap_.Refusals(), 0U);
  ExpectOwnership(Family::kH245, message, "over and over");
  ExpectCleanRelease(message, "over and over");
}

constexpr Family kFamilies[] = {Family::kRas, Family::kQ931, Family::kH245};

std::vector<const Message*> MessagesOf(Family family) {
  std::vector<const Message*> messages;
  for (const Message& message : Corpus()) {
    if (message.family == family) messages.push_back(&message);
  }
  return messages;
}

// The first octets of a message, to bring the decoder to where the hostile ones begin.
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

// A negative length claims 16 bits' worth of octets, of which none is there.
TEST_F(HostileInputTest, ANegativeLengthOfQ931LeavesTheBufferAlone) {
  const std::unique_ptr<uint8_t[]> nothing(new uint8_t[0]);
  h225::Q931MessageRecord record;
  EXPECT_EQ(KelvraDecodeQ931Message(&record, nothing.get(), -1), -1);
  EXPECT_EQ(KelvraDecodeQ931Message(&record, nothing.get(), -65536), -10);
  EXPECT_EQ(heap_.Requests(), 0U);
}

}  // namespace
}  // namespace kelvra::test
