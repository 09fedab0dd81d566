#include "h225/ras/admission.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "h225/ras/admission_decode.h"

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

// A NonStandardParameter of an H.221 identifier.
BitWriter& NonStandard(BitWriter& w) { return w.Bits(1, 2).Bit(false).Octets({181, 0, 0x12, 0x34}).OpenType({7, 8}); }

template <class Body>
void ExpectTheStandardForm(const Body& m) {
  EXPECT_EQ(+m.nonStandardDataForm, 0);
  EXPECT_EQ(OctetsOf(m.nonStandardData.data), (Octets{7, 8}));
  EXPECT_EQ(test::OctetsAt(m.nonStandardDataPrivateForm, kPrivateFormOctets), Octets(kPrivateFormOctets, 0));
}

// An AdmissionRequest up to its additions, without optional members but nonStandardData.
BitWriter BeginAdmissionRequest(bool extended, bool nonStandardData = false) {
  BitWriter w;
  w.Bit(extended).Bits(nonStandardData ? 0b10 : 0, 7).Align().Bits(0, 16).Bits(2, 3);
  w.Bits(0, 7).Align().Bits('E', 16).Length(0);
  w.Bits(3, 2).Align().Bits(0xFFFFFFFF, 32).Bits(0xFFFF, 16);
  if (nonStandardData) NonStandard(w);
  return w.Octets(Rising(0x20, 16)).Bits(0b01, 2);
}

TEST(AdmissionRequestTest, WithoutOptionalMembers) {
  Input input(Marked(BeginAdmissionRequest(false)));
  Owned<AdmissionRequest> m;
  ASSERT_EQ(DecodeAdmissionRequest(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->requestSeqNum, 1);
  EXPECT_EQ(+m->callType.choiceTag, 2);
  EXPECT_EQ(TextOf(m->endpointIdentifier), u"E");
  EXPECT_TRUE(+m->srcInfo == nullptr);
  EXPECT_EQ(+m->bandWidth, 0xFFFFFFFFU);
  EXPECT_EQ(+m->callReferenceValue, 0xFFFF);
  EXPECT_EQ(OctetsOf(m->conferenceID), Rising(0x20, 16));
  EXPECT_EQ(+m->activeMC, 0U);
  EXPECT_EQ(+m->answerCall, 1U);
  EXPECT_EQ(+m->isExtended, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(AdmissionRequestTest, AdditionsBehindTheEighteenthAreSkipped) {
  BitWriter w = BeginAdmissionRequest(true, true);
  Additions(w, Addition(0, 20) | Addition(9, 20) | Addition(18, 20) | Addition(19, 20), 20);
  w.OpenType({0x80}).OpenType({0x80}).OpenType({1, 2, 3}).OpenType({4});
  Input input(Marked(w));
  Owned<AdmissionRequest> m;
  ASSERT_EQ(DecodeAdmissionRequest(*m, input.reader), kDecoded);
  ExpectTheStandardForm(*m);
  EXPECT_EQ(+m->canMapAlias, 1U);
  EXPECT_EQ(+m->willSupplyUUIEs, 1U);
  EXPECT_EQ(+m->hasGenericData, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(AdmissionConfirmTest, FrequencyFormAndLanguages) {
  BitWriter w;
  w.Bit(true).Bits(0b11, 2).Align().Bits(0, 16).Bits(0, 2).Align().Bits(100, 8).Bits(1, 2);
  test::IpAddress(w, 4, 1720).Bits(0, 16);
  NonStandard(w);
  BitWriter languages;
  languages.Length(2).Bits(2 - 1, 5).Octets({'e', 'n'}).Bits(5 - 1, 5).Octets({'d', 'e', '-', 'C', 'H'});
  Additions(w, Addition(11, 21), 21).OpenType(languages);
  Input input(Marked(w));
  Owned<AdmissionConfirm> m;
  ASSERT_EQ(DecodeAdmissionConfirm(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->bandWidth, 100U);
  EXPECT_EQ(+m->callModel.choiceTag, 1);
  EXPECT_EQ(+m->irrFrequency, 1);
  ExpectTheStandardForm(*m);
  ASSERT_EQ(+m->languageCount, 2);
  EXPECT_EQ(TextOf(m->language[0]), "en");
  EXPECT_EQ(TextOf(m->language[1]), "de-CH");
  EXPECT_EQ(input.Next(), kMarker);
}

// An AdmissionReject up to its rejectReason.
BitWriter BeginAdmissionReject(bool nonStandardData = false) {
  return BitWriter().Bit(false).Bit(nonStandardData).Align().Bits(0, 16);
}

TEST(AdmissionRejectTest, NumbersToRouteTo) {
  BitWriter numbers;
  numbers.Length(3);
  for (uint32_t digit = 4; digit < 7; ++digit) numbers.Bits(0, 2).Bits(0, 4).Bits(0, 7).Align().Bits(digit, 4);
  BitWriter w = BeginAdmissionReject(true).Bit(true).NormallySmall(4).OpenType(numbers);
  NonStandard(w);
  Input input(Marked(w));
  Owned<AdmissionReject> m;
  ASSERT_EQ(DecodeAdmissionReject(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->rejectReason.choiceTag, 4);
  EXPECT_EQ(+m->rejectReason.isExtension, 1U);
  const auto& route = m->rejectReason.routeCalltoSCN;
  ASSERT_EQ(+route.count, 3);
  EXPECT_EQ(OctetsOf(route.elements[2].e164Number.publicNumberDigits), Octets{6});
  ExpectTheStandardForm(*m);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(AdmissionRejectTest, OtherReasonsKeepNoContents) {
  for (uint32_t tag = 0; tag < 8; ++tag) {
    Input input(Marked(BeginAdmissionReject().Bits(tag, 4)));
    Owned<AdmissionReject> m;
    ASSERT_EQ(DecodeAdmissionReject(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->rejectReason.choiceTag, tag);
    EXPECT_EQ(+m->rejectReason.isExtension, 0U);
    EXPECT_EQ(input.Next(), kMarker);
  }
  // aliasesInconsistent with an alias, then the last known alternative and an unknown one.
  for (const uint32_t index : {3U, 9U, 10U}) {
    Input input(Marked(BeginAdmissionReject().Bit(true).NormallySmall(index).OpenType({1, 0x40, 0x00, 0x00, 0x41})));
    Owned<AdmissionReject> m;
    ASSERT_EQ(DecodeAdmissionReject(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->rejectReason.choiceTag, index);
    EXPECT_EQ(+m->rejectReason.routeCalltoSCN.count, 0);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

}  // namespace
}  // namespace kelvra::h225
