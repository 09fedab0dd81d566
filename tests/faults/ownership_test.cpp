// Who owns the blocks of a decoded message, and who frees them.
#include <algorithm>
#include <cstring>

#include "faults/fault_test.h"

namespace kelvra::test {
namespace {

class OwnershipTest : public FaultTest {
 protected:
  // True if something was released, and everything with this source path.
  bool ReleasedBy(const char* sourcePath) const {
    return !heap_.Releases().empty() &&
           std::all_of(heap_.Releases().begin(), heap_.Releases().end(),
                       [&](const Release& release) { return release.sourcePath == sourcePath; });
  }
};

const char* ReleasePath(Family family) { return family == Family::kH245 ? "codec/freeintr" : "codec/h323free"; }

TEST_F(OwnershipTest, EachFamilyReleasesUnderItsOwnPath) {
  for (const Message& original : Corpus()) {
    heap_.Reset();
    DecodedMessage message(original.family, WithSpare(original.family, original.octets));
    message.Release();
    EXPECT_TRUE(heap_.Granted().empty() || ReleasedBy(ReleasePath(original.family))) << original.name;
    if (original.family == Family::kH245 || heap_.Requests() < 2) continue;
    // A decode that refuses its message frees what was granted.
    heap_.Reset();
    heap_.RefuseFrom(2);
    DecodedMessage refused(original.family, WithSpare(original.family, original.octets));
    EXPECT_TRUE(refused.Accepted() || ReleasedBy("codec/h323free")) << original.name;
    refused.Release();
  }
}

// With 64-bit pointers, such an address matches a source route that lost its tag in everything except the route count,
// if its octets lie at an address like this one.
TEST_F(OwnershipTest, NonStandardAddressIsNoSourceRoute) {
  if constexpr (sizeof(void*) == 8) {
    h225::TransportAddress address{};
    address.choiceTag = 6;
    address.nonStandardAddress.nonStandardIdentifier.choiceTag = 4;
    address.nonStandardAddress.nonStandardIdentifier.isExtension = 1;
    address.nonStandardAddress.data.length = 3;
    const auto* const octets = reinterpret_cast<const void*>(uintptr_t{1} << 32 | 0x1230);
    std::memcpy(&address.nonStandardAddress.data.data, &octets, sizeof octets);
    EXPECT_EQ(BlocksOf(address).Addresses(), std::vector<const void*>{octets});
  }
}

TEST_F(OwnershipTest, ANullRecordIsReportedAndIgnored) {
  KelvraFreeRASMessage(nullptr);
  KelvraFreeQ931Message(nullptr);
  ASSERT_EQ(heap_.Traces().size(), 2U);
  for (const TraceCall& trace : heap_.Traces()) {
    EXPECT_EQ(trace.module, 64);
    EXPECT_EQ(trace.severity, 2);
    EXPECT_EQ(trace.reason, 4);
    EXPECT_EQ(trace.source, 36);
  }
  EXPECT_TRUE(heap_.Releases().empty());
}

}  // namespace
}  // namespace kelvra::test
