// H.245 readings that the vectors leave out, because they deviate from the ASN.1 or no encoder produces them.
#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "kelvra/h225/ras/location.h"
#include "kelvra/h245/capabilities/stream_capability.h"
#include "kelvra/h245/channels/h2250_parameters.h"
#include "per/decoder.h"

namespace kelvra::h245 {
namespace {

using test::BitWriter;
using test::DecodeH245;
using test::Input;
using test::kMarker;
using test::Marked;
using test::Owned;

TEST(MediaPacketizationTest, KeepsTheOctetOfExtension1Alone) {
  constexpr struct {
    bool isExtension;
    uint32_t index;
    uint8_t kept;
  } kCases[] = {{false, 0, 0}, {true, 0, 0}, {true, 1, 0x42}, {true, 2, 0}, {true, 257, 0}};
  for (const auto& c : kCases) {
    BitWriter w;
    w.Bit(false).Bits(1, 10).Align().Bits(1, 8).Bit(c.isExtension);
    if (c.isExtension) w.NormallySmall(c.index).OpenType({0x42, 0x43, 0x44});
    Input input(Marked(w));
    Owned<H2250LogicalChannelParameters> m;
    DecodeH245(*m, input.reader);
    EXPECT_EQ(+m->mediaPacketization.isExtension, c.isExtension ? 1U : 0U);
    EXPECT_EQ(+m->mediaPacketization.choiceTag, c.index & 0xFF);
    EXPECT_EQ(+m->mediaPacketization.mediaPacketizationOctet, c.kept) << c.index;
    EXPECT_EQ(input.Next(), kMarker);
    EXPECT_EQ(input.reader.openTypes.lengths[1], c.kept != 0 ? 3U : 0U) << "what is passed over takes no slot";
  }
}

TEST(AlternativeCapabilitySetTest, CountIsNotAlignedAndHolds256Entries) {
  BitWriter w;
  w.Bits(0b101, 3).Bits(255, 8);
  for (uint16_t i = 1; i <= 256; ++i) w.Align().Bits(i - 1U, 16);
  Input input(Marked(w));
  PerSkipBits(input.reader, 3);
  Owned<AlternativeCapabilitySet> m;
  DecodeH245(*m, input.reader);
  ASSERT_EQ(+m->entryCount, 256);
  EXPECT_EQ(+m->entries[255], 256);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(NullAlternativeTest, TakesASlotOfTheRingOfOpenTypes) {
  Input input(Marked(BitWriter().Bit(true).NormallySmall(1).OpenType({1, 2})));  // aliasesInconsistent
  Owned<h225::LocationRejectReason> reason;
  ASSERT_EQ(Decode(*reason, input.reader), kDecoded);
  EXPECT_EQ(input.reader.openTypes.lengths[1], 2U);
  EXPECT_EQ(input.Next(), kMarker);
}

}  // namespace
}  // namespace kelvra::h245
