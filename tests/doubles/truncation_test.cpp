// What the exports return for messages that are cut short, each in a heap block of just its size.
#include "doubles/fault_test.h"

namespace kelvra::test {
namespace {

using TruncationTest = FaultTest;

std::vector<uint8_t> Cut(const Message& original, size_t size) {
  return {original.octets.begin(), original.octets.begin() + static_cast<ptrdiff_t>(size)};
}

// Where an open type's length leads behind the octets that are there, the message ends behind them.
TEST_F(TruncationTest, ARasMessageIsRefusedOrEndsBehindItsBuffer) {
  for (const Message& original : Corpus()) {
    if (original.family != Family::kRas) continue;
    for (size_t size = 0; size < original.octets.size(); ++size) {
      DecodedMessage message(Family::kRas, Cut(original, size));
      if (!message.Accepted()) continue;
      EXPECT_GT(message.Result(), static_cast<int64_t>(size)) << original.name;
      message.Release();
    }
  }
}

// The call reference and the message type end with octet 9; the user-user element comes after them.
TEST_F(TruncationTest, AQ931MessageWithoutInformationElementsIsRefused) {
  for (const Message& original : Corpus()) {
    if (original.family != Family::kQ931) continue;
    for (size_t size = 1; size <= 9; ++size) {
      DecodedMessage message(Family::kQ931, Cut(original, size));
      EXPECT_EQ(message.Result(), -1) << original.name << ", cut to " << size;
    }
    DecodedMessage empty(Family::kQ931, {});
    EXPECT_EQ(empty.Result(), -10) << original.name;
  }
  EXPECT_EQ(heap_.Requests(), 0U);
}

TEST_F(TruncationTest, AnEmptyH245MessageEndsWithItsBuffer) {
  DecodedMessage message(Family::kH245, {});
  EXPECT_EQ(message.Result(), 1);
  EXPECT_EQ(heap_.Requests(), 0U);
}

}  // namespace
}  // namespace kelvra::test
