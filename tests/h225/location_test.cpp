#include "kelvra/h225/ras/location.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "per/decoder.h"

namespace kelvra::h225 {
namespace {

using test::Addition;
using test::Additions;
using test::BitWriter;
using test::Input;
using test::kMarker;
using test::Marked;
using test::OctetsOf;
using test::Owned;
using Octets = std::vector<uint8_t>;

TEST(LocationRequestTest, HopCountHas255Values) {
  // 255 values fit a field of 8 bits that is not aligned; 256 would take an aligned octet.
  constexpr struct { uint8_t coded, hops; } kCases[] = {{0, 1}, {254, 255}, {255, 0}};
  for (const auto& c : kCases) {
    BitWriter w;
    w.Bit(true).Bits(0, 2).Align().Bits(0, 16).Length(0);
    test::IpAddress(w, 3, 1719);
    Additions(w, Addition(1, 12) | Addition(10, 12), 12).OpenType({0x80}).OpenType({c.coded});
    Input input(Marked(w));
    Owned<LocationRequest> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_TRUE(+m->destinationInfo == nullptr);
    EXPECT_EQ(OctetsOf(m->replyAddress.ipAddress.ip), (Octets{10, 1, 2, 3}));
    EXPECT_EQ(+m->canMapAlias, 1U);
    EXPECT_EQ(+m->hasHopCount, 1U);
    EXPECT_EQ(+m->hopCount, c.hops);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

// A LocationReject up to its rejectReason.
BitWriter BeginLocationReject() { return BitWriter().Bits(0, 2).Align().Bits(0, 16); }

TEST(LocationRejectTest, OtherReasonsKeepNoContents) {
  // Index 258 keeps the tag of routeCalltoSCN; it is an unknown alternative all the same.
  for (const uint32_t index : {0U, 1U, 7U, 8U, 258U}) {
    Input input(
        Marked(BeginLocationReject().Bit(true).NormallySmall(index).OpenType({1, 0x05, 0x00, 0x40, 0x00, 0x41})));
    Owned<LocationReject> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->rejectReason.choiceTag, index & 0xFF);
    EXPECT_EQ(+m->rejectReason.isExtension, 1U);
    EXPECT_EQ(+m->rejectReason.routeCalltoSCN.count, 0);
    EXPECT_TRUE(+m->rejectReason.routeCalltoSCN.elements == nullptr);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

}  // namespace
}  // namespace kelvra::h225
