// What the worst messages may cost, in figures that are the same on every run: octets read again, and octets
// of blocks claimed.
#include <gtest/gtest.h>

#include <algorithm>

#include "doubles/fault_test.h"
#include "h225/call/h323_user_information_decode.h"
#include "h225/ras/ras_message_decode.h"
#include "h225/release.h"
#include "h245/messages/h245_message_decode.h"
#include "h245/release.h"
#include "hostile/hostile_messages.h"
#include "per/reader.h"

namespace kelvra::test {
namespace {

constexpr size_t kLongest = 65535;

struct Cost {
  uint32_t reread;
  uint32_t claimed;
};

// Where the contents of the user-user element begin behind their protocol discriminator.
size_t UserInformationIn(const std::vector<uint8_t>& octets) {
  size_t at = 9;
  while (at < octets.size() && octets[at] != 0x7E) at += octets[at] >= 0x80 ? 1 : 2 + size_t{octets[at + 1]};
  return std::min(at + 4, octets.size());
}

Cost CostOf(const Message& message) {
  const std::vector<uint8_t> octets = WithSpare(message.family, message.octets);
  const size_t first = message.family == Family::kQ931 ? UserInformationIn(octets) : 0;
  PerReader reader;
  PerReaderInit(reader, octets.data() + first, static_cast<uint32_t>(octets.size() - first));
  const uint32_t allowance = reader.allowance;
  if (message.family == Family::kRas) {
    h225::RasMessageRecord record{};
    static_cast<void>(h225::DecodeRasMessage(record, reader));
    h225::ReleaseRasMessage(&record);
  } else if (message.family == Family::kQ931) {
    h225::H323UserInformation record{};
    static_cast<void>(h225::DecodeH323UserInformation(record, reader));
    h225::ReleaseH323UserInformation(&record);
  } else {
    h245::H245MessageRecord record{};
    h245::DecodeMultimediaSystemControlMessage(record, reader);
    h245::ReleaseH245Message(record);
  }
  return {reader.reread, allowance - reader.allowance};
}

using WorstCases = FaultTest;

TEST_F(WorstCases, ReadNoMoreAgainThanTheBound) {
  size_t stopped = 0;
  for (const size_t size : {kLongest / 4, kLongest / 2, kLongest}) {
    for (const Message& message : HostileMessages(size)) {
      const Cost cost = CostOf(message);
      EXPECT_LE(cost.reread, kMaximumRereading + 1) << message.name;
      EXPECT_LE(cost.claimed, kMaximumMessageMemory) << message.name;
      if (cost.reread > kMaximumRereading) ++stopped;
      if (size == kLongest) {
        printf("%-32s %6zu octets, %6u read again, %9u claimed\n", message.name.c_str(), message.octets.size(),
               cost.reread, cost.claimed);
      }
    }
  }
  EXPECT_GE(stopped, 9U) << "messages that used to take seconds";
}

TEST_F(WorstCases, LeaveARecordThatReleasesCleanly) {
  for (const Message& message : HostileMessages(kLongest)) ExpectSafe(message.family, message.octets, message.name);
}

TEST_F(WorstCases, AreFarFromWhatLawfulMessagesNeed) {
  double ratio = 0;
  for (const Message& message : Corpus()) {
    const Cost cost = CostOf(message);
    ratio = std::max(ratio, static_cast<double>(cost.claimed) / static_cast<double>(message.octets.size()));
    EXPECT_EQ(cost.reread, 0U) << message.name;
    EXPECT_LE(cost.claimed, kMaximumMessageMemory / 20) << message.name;
  }
  printf("carried messages: at most %.1f octets claimed for each\n", ratio);
}

}  // namespace
}  // namespace kelvra::test
