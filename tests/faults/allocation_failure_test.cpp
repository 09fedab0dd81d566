// What refused allocations leave in addition to the record.
#include "faults/channel_writer.h"
#include "faults/fault_test.h"
#include "kelvra/h245/messages/h245_message.h"
#include "per/decoder.h"
#include "record/release.h"

namespace kelvra::test {
namespace {

using AllocationFailureTest = FaultTest;

// If a slot of the ring stayed taken, the open types around it would resume at a wrong place.
TEST_F(AllocationFailureTest, H245LeavesEveryOpenTypeThatItEnters) {
  for (const Message& original : Corpus()) {
    if (original.family != Family::kH245) continue;
    for (size_t nth = 1;; ++nth) {
      heap_.Reset();
      heap_.RefuseOnly(nth);
      PerReader reader;
      PerReaderInit(reader, original.octets.data(), static_cast<uint32_t>(original.octets.size()));
      h245::H245MessageRecord record{};
      static_cast<void>(Decode(record, reader));
      EXPECT_EQ(reader.openTypes.index, 0U) << original.name << ", allocation " << nth;
      kelvra::Release(record, ReleaseVisitor(h245::kReleasePath));
      if (heap_.Refusals() == 0) break;
    }
  }
}

// A message that needs no block also decodes with an empty heap.
TEST_F(AllocationFailureTest, MessageWithoutBlocksNeedsNoMemory) {
  heap_.RefuseFrom(1);
  const std::vector<uint8_t> octets = OpenLogicalChannelMessage(WriteNullDataType);
  DecodedMessage message(Family::kH245, octets);
  EXPECT_EQ(message.Result(), 1);
  EXPECT_EQ(heap_.Requests(), 0U);
}

class RedundancyEncodingTest : public FaultTest {
 protected:
  // redundancyEncoding with a nonStandard secondaryEncoding (three blocks) and one element of
  // rtpRedundancyEncoding.secondary (two).
  static std::vector<uint8_t> Octets() {
    BitWriter rtp;
    rtp.Bits(0b001, 3);      // secondary alone
    rtp.Align().Bits(1, 8);  // its count
    rtp.Bits(0b00, 2);       // one element without payloadType
    WriteNullDataType(rtp);
    BitWriter encoding;
    encoding.Bits(0b11, 2);                      // extended, with secondaryEncoding
    encoding.Bits(0b01, 2);                      // rtpAudioRedundancyEncoding
    encoding.Bits(0b0000, 4);                    // DataType: nonStandard
    encoding.Bit(false).OpenType({0x2A, 0x03});  // its identifier, an object
    encoding.OpenType({0x11, 0x22, 0x33});       // its data
    encoding.NormallySmall(0).Bit(true).OpenType(rtp);
    return OpenLogicalChannelMessage([&](BitWriter& message) {
      message.Bit(true).NormallySmall(3).OpenType(encoding);  // redundancyEncoding
    });
  }
  static const h245::RedundancyEncoding& EncodingOf(const DecodedMessage& message) {
    return message.H245().request.openLogicalChannel.forwardLogicalChannelParameters.dataType.redundancyEncoding;
  }
  // Copies the values: nothing may refer to an unaligned pointer in a record.
  static const void* SecondaryEncodingOf(const DecodedMessage& message) {
    return EncodingOf(message).secondaryEncoding;
  }
  static const void* ListOf(const DecodedMessage& message) {
    return EncodingOf(message).rtpRedundancyEncoding.secondary;
  }
  static constexpr size_t kListOfSecondary = 4;
};

TEST_F(RedundancyEncodingTest, ReleasesTheSecondaryEncodingAtOnceWhenTheListIsRefused) {
  heap_.RefuseOnly(kListOfSecondary);
  DecodedMessage message(Family::kH245, Octets());
  ASSERT_EQ(heap_.Granted().size(), 3U);
  // The record's blocks first, then the record itself, which was granted first.
  ASSERT_EQ(heap_.Releases().size(), 3U);
  for (const Release& release : heap_.Releases()) EXPECT_EQ(release.sourcePath, "codec/h245func");
  EXPECT_EQ(heap_.Releases().back().block, heap_.Granted().front());
  EXPECT_TRUE(heap_.LiveBlocks().empty());
  EXPECT_EQ(SecondaryEncodingOf(message), nullptr);
  EXPECT_EQ(ListOf(message), nullptr);
  EXPECT_EQ(EncodingOf(message).rtpRedundancyEncoding.secondaryCount, 1);
  ExpectCleanRelease(message, "refused");
  EXPECT_EQ(heap_.Releases().size(), 3U);
}

}  // namespace
}  // namespace kelvra::test
