#include "kelvra/h225/ras/admission.h"

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
using Octets = std::vector<uint8_t>;

// An AdmissionRequest up to its additions, without optional members but nonStandardData.
BitWriter BeginExtendedAdmissionRequest() {
  BitWriter w;
  w.Bit(true).Bits(0b10, 7).Align().Bits(0, 16).Bits(2, 3);
  w.Bits(0, 7).Align().Bits('E', 16).Length(0);
  w.Bits(3, 2).Align().Bits(0xFFFFFFFF, 32).Bits(0xFFFF, 16);
  w.Bits(1, 2).Bit(false).Octets({181, 0, 0x12, 0x34}).OpenType({7, 8});
  return w.Octets(Rising(0x20, 16)).Bits(0b01, 2);
}

TEST(AdmissionRequestTest, AdditionsBehindTheEighteenthAreSkipped) {
  BitWriter w = BeginExtendedAdmissionRequest();
  Additions(w, Addition(0, 20) | Addition(9, 20) | Addition(18, 20) | Addition(19, 20), 20);
  w.OpenType({0x80}).OpenType({0x80}).OpenType({1, 2, 3}).OpenType({4});
  Input input(Marked(w));
  Owned<AdmissionRequest> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->nonStandardDataForm, 0);
  EXPECT_EQ(OctetsOf(m->nonStandardData.data), (Octets{7, 8}));
  EXPECT_EQ(test::OctetsAt(m->nonStandardDataPrivateForm, kPrivateFormOctets), Octets(kPrivateFormOctets, 0));
  EXPECT_EQ(+m->canMapAlias, 1U);
  EXPECT_EQ(+m->willSupplyUUIEs, 1U);
  EXPECT_EQ(+m->hasGenericData, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

// An AdmissionReject up to its rejectReason.
BitWriter BeginAdmissionReject() { return BitWriter().Bits(0, 2).Align().Bits(0, 16); }

TEST(AdmissionRejectTest, OtherReasonsKeepNoContents) {
  for (uint32_t tag = 0; tag < 8; ++tag) {
    Input input(Marked(BeginAdmissionReject().Bits(tag, 4)));
    Owned<AdmissionReject> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->rejectReason.choiceTag, tag);
    EXPECT_EQ(+m->rejectReason.isExtension, 0U);
    EXPECT_EQ(input.Next(), kMarker);
  }
  // aliasesInconsistent with an alias, then the last known alternative and an unknown one.
  for (const uint32_t index : {3U, 9U, 10U}) {
    Input input(Marked(BeginAdmissionReject().Bit(true).NormallySmall(index).OpenType({1, 0x40, 0x00, 0x00, 0x41})));
    Owned<AdmissionReject> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->rejectReason.choiceTag, index);
    EXPECT_EQ(+m->rejectReason.routeCalltoSCN.count, 0);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

}  // namespace
}  // namespace kelvra::h225
