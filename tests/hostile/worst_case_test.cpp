// Limits on the cost of the worst messages, in deterministic numbers: octets read again, and octets of blocks claimed.
#include <gtest/gtest.h>

#include <algorithm>

#include "families.h"
#include "faults/fault_test.h"
#include "hostile/hostile_messages.h"
#include "hostile/message_cost.h"
#include "per/reader.h"

namespace kelvra::test {
namespace {

constexpr size_t kLongest = 65535;

using WorstCases = FaultTest;

TEST_F(WorstCases, ClaimNoMoreThanTheBoundAndStopWhereTheyReadTooMuchAgain) {
  size_t stopped = 0;
  for (const size_t size : {kLongest / 4, kLongest / 2, kLongest}) {
    for (const Message& message : HostileMessages(size)) {
      heap_.Reset();
      const MessageCost cost = CostOf(message.family, message.octets);
      // Counted by the heap, because the reader's own number cannot exceed its bound.
      EXPECT_LE(heap_.OctetsGranted(), kMaximumMessageMemory) << message.name;
      EXPECT_EQ(heap_.OctetsGranted(), cost.claimed) << message.name;
      if (cost.reread > kMaximumRereading) ++stopped;
      if (size == kLongest) {
        printf("%-32s %6zu octets, %6u read again, %9u claimed\n", message.name.c_str(), message.octets.size(),
               cost.reread, cost.claimed);
      }
    }
  }
  EXPECT_GE(stopped, 9U) << "messages that used to take seconds";
}

TEST_F(WorstCases, RegistrationWithRereadAliasesIsAccepted) {
  std::vector<uint8_t> octets = RegistrationOfAliases(kLongest);
  EXPECT_EQ(CostOf(Family::kRas, octets).reread, 10 * AliasesOfRegistration(kLongest) - 4);
  static Ras::Record record;
  EXPECT_EQ(Ras::Decode(&record, octets.data(), octets.size()), static_cast<int64_t>(octets.size() - 1));
  EXPECT_EQ(+record.registrationRequest.terminalAliasCount, AliasesOfRegistration(kLongest));
  EXPECT_EQ(+record.registrationRequest.endpointVendor.vendor.manufacturerCode, 18);
  Ras::Release(&record);
}

TEST_F(WorstCases, ACapabilitySetElevenOpenTypesDeepFillsItsTable) {
  std::vector<uint8_t> octets = CapabilitiesElevenDeep(kLongest);
  EXPECT_EQ(CostOf(Family::kH245, octets).reread, 80390U);
  static H245::Record record;
  EXPECT_EQ(H245::Decode(&record, octets.data(), octets.size()), 0);
  const auto& set = record.request.terminalCapabilitySet;
  ASSERT_EQ(+set.capabilityTableCount, 256);
  for (uint32_t i = 0; i < 256; ++i) EXPECT_NE(+set.capabilityTable[i].capabilityTableEntryNumber, 0) << i;
  H245::Release(&record);
}

TEST_F(WorstCases, LeaveARecordThatReleasesCleanly) {
  for (const Message& message : HostileMessages(kLongest)) ExpectSafe(message.family, message.octets, message.name);
}

TEST_F(WorstCases, ExceedWhatTestMessagesNeed) {
  double ratio = 0;
  for (const Message& message : Corpus()) {
    const MessageCost cost = CostOf(message.family, WithSpare(message.family, message.octets));
    ratio = std::max(ratio, static_cast<double>(cost.claimed) / static_cast<double>(message.octets.size()));
    EXPECT_EQ(cost.reread, 0U) << message.name;
    EXPECT_LE(cost.claimed, kMaximumMessageMemory / 20) << message.name;
  }
  printf("carried messages: at most %.1f octets claimed for each\n", ratio);
}

}  // namespace
}  // namespace kelvra::test
