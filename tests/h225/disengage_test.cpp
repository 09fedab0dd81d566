#include "kelvra/h225/ras/disengage.h"

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
using test::Rising;
using test::TextOf;
using Octets = std::vector<uint8_t>;

// A DisengageRequest up to its disengageReason: endpointIdentifier "E", callReferenceValue 513.
BitWriter BeginDisengageRequest(bool extended, bool nonStandardData) {
  BitWriter w;
  w.Bit(extended).Bit(nonStandardData).Align().Bits(6, 16).Bits(0, 7).Align().Bits('E', 16);
  return w.Octets(Rising(0x10, 16)).Bits(513, 16);
}

TEST(DisengageRequestTest, NonStandardDataTakesTheStandardForm) {
  BitWriter w =
      BeginDisengageRequest(true, true).Bits(1, 3).Bits(1, 2).Bit(false).Octets({181, 0, 0x12, 0x34}).OpenType({7, 8});
  Additions(w, Addition(5, 14) | Addition(13, 14), 14).OpenType({0x80}).OpenType({1, 2, 3});
  Input input(Marked(w));
  Owned<DisengageRequest> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->requestSeqNum, 7);
  EXPECT_EQ(TextOf(m->endpointIdentifier), u"E");
  EXPECT_EQ(OctetsOf(m->conferenceID), Rising(0x10, 16));
  EXPECT_EQ(+m->callReferenceValue, 513);
  EXPECT_EQ(+m->disengageReason.choiceTag, 1);
  EXPECT_EQ(+m->hasNonStandardData, 1U);
  EXPECT_EQ(+m->nonStandardDataForm, 0);
  EXPECT_EQ(+m->nonStandardData.nonStandardIdentifier.h221NonStandard.manufacturerCode, 0x1234);
  EXPECT_EQ(OctetsOf(m->nonStandardData.data), (Octets{7, 8}));
  EXPECT_EQ(test::OctetsAt(m->nonStandardDataPrivateForm, kPrivateFormOctets), Octets(kPrivateFormOctets, 0));
  EXPECT_EQ(+m->hasAnsweredCall, 1U);
  EXPECT_EQ(+m->answeredCall, 1U);
  EXPECT_EQ(+m->hasGenericData, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(DisengageRequestTest, ReasonPastTheAlternativesIsMalformed) {
  Input input(Marked(BeginDisengageRequest(false, false).Bits(3, 3)));
  Owned<DisengageRequest> m;
  EXPECT_EQ(Decode(*m, input.reader), kMalformed);
}

TEST(DisengageReasonTest, ExtensionAlternativesArePassedOver) {
  Input input(Marked(BitWriter().Bit(true).NormallySmall(0).OpenType({1, 2})));
  Owned<DisengageReason> m;
  ASSERT_EQ(DecodeByHand(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->choiceTag, 0);
  EXPECT_EQ(+m->isExtension, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(DisengageRejectReasonTest, ExtensionBitIsKeptOfInputThatEndsWithIt) {
  for (const uint32_t last : {0U, 1U}) {
    Input input(BitWriter().Bits(last, 8));
    PerReadBits(input.reader, 7);
    Owned<DisengageRejectReason> m;
    EXPECT_EQ(DecodeByHand(*m, input.reader), kExhausted);
    EXPECT_EQ(+m->isExtension, last);
    EXPECT_EQ(DecodeByHand(*m, input.reader), kExhausted);
    EXPECT_EQ(+m->isExtension, 0U);
  }
}

}  // namespace
}  // namespace kelvra::h225
