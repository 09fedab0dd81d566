// Who owns the blocks of a decoded message, and who gives them back.
#include <algorithm>
#include <cstring>

#include "faults/fault_test.h"

namespace kelvra::test {
namespace {

class OwnershipTest : public FaultTest {
 protected:
  // Whether something was released, and all of it with this source path.
  bool ReleasedBy(const char* sourcePath) const {
    return !heap_.Releases().empty() &&
           std::all_of(heap_.Releases().begin(), heap_.Releases().end(),
                       [&](const Release& release) { return release.sourcePath == sourcePath; });
  }
};

const char* ReleasePath(Family family) { return family == Family::kH245 ? "codec/freeintr" : "codec/h323free"; }

TEST_F(OwnershipTest, EveryLiveBlockIsReachedByOneSlot) {
  for (const Message& original : Corpus()) {
    heap_.Reset();
    DecodedMessage message(original.family, WithSpare(original.family, original.octets));
    const OwnershipVisitor walk = message.Walk();
    EXPECT_EQ(walk.Blocks(), heap_.LiveBlocks()) << original.name;
    EXPECT_EQ(walk.Blocks().size(), heap_.Granted().size()) << original.name;
    EXPECT_EQ(walk.EmptyStrings(), 0U) << original.name;
    EXPECT_EQ(walk.EmptyLists(), 0U) << original.name;
    message.Release();
  }
}

TEST_F(OwnershipTest, AReleaseGivesBackEveryBlockAndLeavesNoPointer) {
  for (const Message& original : Corpus()) {
    heap_.Reset();
    DecodedMessage message(original.family, WithSpare(original.family, original.octets));
    ExpectCleanRelease(message, original.name);
    EXPECT_EQ(heap_.Releases().size(), heap_.Granted().size()) << original.name;
    EXPECT_TRUE(heap_.Granted().empty() || ReleasedBy(ReleasePath(original.family))) << original.name;
  }
}

TEST_F(OwnershipTest, ARefusedMessageIsReleasedByTheDecode) {
  size_t refused = 0;
  for (const Message& original : Corpus()) {
    if (original.family == Family::kH245) continue;
    heap_.Reset();
    DecodedMessage whole(original.family, WithSpare(original.family, original.octets));
    whole.Release();
    const size_t requests = heap_.Requests();
    heap_.Reset();
    if (requests < 2) continue;
    // With the first block granted there is something to give back.
    heap_.RefuseFrom(2);
    DecodedMessage message(original.family, WithSpare(original.family, original.octets));
    if (message.Accepted()) {
      message.Release();
      continue;
    }
    ++refused;
    EXPECT_TRUE(ReleasedBy("codec/h323free")) << original.name;
    EXPECT_TRUE(heap_.LiveBlocks().empty()) << original.name;
  }
  EXPECT_GT(refused, 0U);
}

// With pointers of 64 bits such an address agrees with a source route that lost its tag in all but the
// count of the route, when its octets lie at an address like this one.
TEST_F(OwnershipTest, ANonStandardAddressIsNotTakenForASourceRoute) {
  if constexpr (sizeof(void*) == 8) {
    h225::TransportAddress address{};
    address.choiceTag = 6;
    address.nonStandardAddress.nonStandardIdentifier.choiceTag = 4;
    address.nonStandardAddress.nonStandardIdentifier.isExtension = 1;
    address.nonStandardAddress.data.length = 3;
    const auto* const octets = reinterpret_cast<const void*>(uintptr_t{1} << 32 | 0x1230);
    std::memcpy(&address.nonStandardAddress.data.data, &octets, sizeof octets);
    OwnershipVisitor visitor;
    h225::TransportAddress::Walk(address, visitor);
    EXPECT_EQ(visitor.Blocks(), std::vector<const void*>{octets});
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
