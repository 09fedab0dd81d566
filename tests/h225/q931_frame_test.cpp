#include "h225/call/q931_frame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>

#include "exact_buffer.h"
#include "h225/q931_builder.h"
#include "kelvra/kelvra.h"

namespace kelvra::h225 {
namespace {

using test::BitWriter;
using test::EmptyBodyInformation;
using test::Q931Builder;
using test::Rising;
using Octets = std::vector<uint8_t>;

// A frame decoded from a block of exactly its size; released at the end.
class Frame {
 public:
  explicit Frame(const Octets& octets) : Frame(octets, static_cast<int32_t>(octets.size())) {}
  Frame(const Octets& octets, int32_t length) : buffer_(octets) {
    result = KelvraDecodeQ931Message(&m, buffer_.Data(), length);
  }
  ~Frame() { KelvraFreeQ931Message(&m); }
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;
  bool Has(Q931Presence bit) const { return (m.presenceMask & bit) != 0; }

  int32_t result;
  Q931MessageRecord m;

 private:
  test::ExactBuffer buffer_;
};

std::string Text(const uint8_t* octets) { return reinterpret_cast<const char*>(octets); }

TEST(Q931FrameTest, HeaderIsCopiedWhateverFollows) {
  for (size_t length = 5; length <= 9; ++length) {
    Octets octets = Q931Builder().Done();
    octets.resize(length);
    Frame frame(octets);
    EXPECT_EQ(frame.result, kQ931Rejected);
    EXPECT_EQ(+frame.m.protocolDiscriminator, 8);
    EXPECT_EQ(+frame.m.messageType, length == 9 ? 5 : 0) << "what is not there reads as zero";
    EXPECT_EQ(+frame.m.callReferenceValue, length >= 8 ? 0x9234 : length == 7 ? 0x9200 : 0);
    EXPECT_EQ(+frame.m.presenceMask, 0U);
  }
}

TEST(Q931FrameTest, OnlyTheLow16BitsOfTheLengthCount) {
  Frame none(Octets(65536), 65536);
  EXPECT_EQ(none.result, kQ931BadArgument);
  EXPECT_EQ(+none.m.protocolDiscriminator, 0);
  EXPECT_EQ(Frame(Octets(1), 0).result, kQ931BadArgument);
  Octets octets = Q931Builder().UserUser().Done();
  const auto length = static_cast<int32_t>(octets.size());
  octets.resize(octets.size() + 65536);
  EXPECT_EQ(Frame(octets, length + 65536).result, kQ931Decoded);
  EXPECT_EQ(Frame(octets, length + 0x40000000).result, kQ931Decoded) << "where a pointer plus that many would wrap too";
}

TEST(Q931FrameTest, ANegativeLengthIsThatOfABufferOfNoOctets) {
  const Octets octets = Q931Builder().UserUser().Done();
  Frame frame(octets, static_cast<int32_t>(octets.size()) - 65536);
  EXPECT_EQ(frame.result, kQ931Rejected);
  EXPECT_EQ(+frame.m.protocolDiscriminator, 0);
  EXPECT_EQ(+frame.m.presenceMask, 0U);
}

TEST(Q931FrameTest, NullArgumentsAreRefused) {
  uint8_t octet = 0;
  Q931MessageRecord record;
  EXPECT_EQ(DecodeQ931Frame(nullptr, &octet, 1), kQ931BadArgument);
  EXPECT_EQ(DecodeQ931Frame(&record, nullptr, 1), kQ931BadArgument);
  const Q931Frame frame{&octet, 1, 1};
  Q931Element element{};
  EXPECT_EQ(FindQ931Element(nullptr, 0x7E, &element), kQ931BadArgument);
  EXPECT_EQ(FindQ931Element(&frame, 0x7E, nullptr), kQ931BadArgument);
}

// With its 3-octet header, the user-user element would not fit in 16 bits.
TEST(Q931FrameTest, ALengthThatItsHeaderCarriesPast16BitsIsBeyondTheFrame) {
  for (const uint8_t low : {uint8_t{0xFD}, uint8_t{0xFF}}) {
    Octets octets = Q931Builder().UserUser().Done();
    const auto identifier = std::find(octets.begin(), octets.end(), 0x7E);
    identifier[1] = 0xFF;
    identifier[2] = low;
    EXPECT_EQ(Frame(octets).result, kQ931Rejected) << +low;
  }
}

TEST(Q931FrameTest, SingleOctetElementsAreNeverFound) {
  Frame frame(Q931Builder().Octets({0xA1, 0x90, 0xFF}).Element(0x08, {0x80, 0x90}).UserUser().Octets({0xA1}).Done());
  EXPECT_EQ(frame.result, kQ931Decoded);
  EXPECT_FALSE(frame.Has(kSendingCompletePresent));
  EXPECT_EQ(+frame.m.causeValue, 0x90) << "an element after a shift is found all the same";
  EXPECT_TRUE(frame.Has(kUserInformationPresent));
}

TEST(Q931FrameTest, PartyNumbersHold1To32Digits) {
  constexpr struct {
    uint32_t length;
    bool kept;
  } kCases[] = {{0, false}, {1, false}, {2, true}, {33, true}, {34, false}, {60, false}};
  for (const auto& c : kCases) {
    const std::string digits(c.length == 0 ? 0 : c.length - 1, '7');
    Octets contents(c.length, '7');
    if (c.length > 0) contents[0] = 0x81;
    Frame frame(Q931Builder().Element(0x6C, contents).Element(0x70, contents).UserUser().Done());
    ASSERT_EQ(frame.result, kQ931Decoded);
    EXPECT_EQ(frame.Has(kCallingPartyNumberPresent), c.kept) << c.length;
    EXPECT_EQ(frame.Has(kCalledPartyNumberPresent), c.kept) << c.length;
    EXPECT_EQ(Text(frame.m.callingPartyNumber), c.kept ? digits : "");
    EXPECT_EQ(Text(frame.m.calledPartyNumber), c.kept ? digits : "");
  }
  Frame octet3a(Q931Builder().Element(0x6C, {0x01, 0x83, '5'}).UserUser().Done());
  EXPECT_EQ(Text(octet3a.m.callingPartyNumber),
            "\x83"
            "5");
}

TEST(Q931FrameTest, BoundsOfTheOtherElements) {
  constexpr struct {
    uint8_t identifier;
    uint32_t skipped, room;
    Q931Presence bit;
  } kCases[] = {{0x04, 0, 12, kBearerCapabilityPresent},      {0x29, 0, 6, kDateTimePresent},
                {0x2C, 0, 34, kKeypadFacilityPresent},        {0x1E, 0, 2, kProgressIndicatorPresent},
                {0x10, 0, 10, kCallIdentityPresent},          {0x71, 1, 23, kCalledPartySubaddressPresent},
                {0x6D, 1, 23, kCallingPartySubaddressPresent}};
  for (const auto& c : kCases) {
    for (const uint32_t kept : {0U, 1U, c.room, c.room + 1}) {
      Frame frame(Q931Builder().Element(c.identifier, Rising(1, c.skipped + kept)).UserUser().Done());
      ASSERT_EQ(frame.result, kQ931Decoded);
      const bool within = kept >= 1 && kept <= c.room;
      EXPECT_EQ(frame.Has(c.bit), within) << +c.identifier << " of " << kept;
      const struct {
        uint8_t identifier;
        const uint8_t* octets;
        int length;  // as stored, or -1 if there is none
      } kSlots[] = {{0x04, frame.m.bearerCapability, frame.m.bearerCapabilityLength},
                    {0x29, frame.m.dateTime, -1},
                    {0x2C, frame.m.keypadFacility, -1},
                    {0x1E, frame.m.progressIndicator, frame.m.progressIndicatorLength},
                    {0x10, frame.m.callIdentity, frame.m.callIdentityLength},
                    {0x71, frame.m.calledPartySubaddress, frame.m.calledPartySubaddressLength},
                    {0x6D, frame.m.callingPartySubaddress, frame.m.callingPartySubaddressLength}};
      for (const auto& slot : kSlots) {
        if (slot.identifier != c.identifier) continue;
        Octets expected = within ? Rising(static_cast<uint8_t>(1 + c.skipped), kept) : Octets();
        if (slot.length >= 0) {
          EXPECT_EQ(slot.length, static_cast<int>(expected.size()));
        }
        expected.resize(c.room);
        EXPECT_EQ(Octets(slot.octets, slot.octets + c.room), expected) << +c.identifier << " of " << kept;
      }
    }
  }
}

TEST(Q931FrameTest, ElementsWithoutABoundCopyOneOctet) {
  // An empty element copies the octet after it; a cause copies the second one.
  Frame frame(Q931Builder()
                  .Element(0x14, {0x0A, 1})
                  .Element(0x27, {})
                  .Element(0x34, {0x4F})
                  .Element(0x08, {0x80})
                  .UserUser()
                  .Done());
  ASSERT_EQ(frame.result, kQ931Decoded);
  EXPECT_EQ(+frame.m.callState, 0x0A);
  EXPECT_EQ(+frame.m.notificationIndicator, 0x34);
  EXPECT_EQ(+frame.m.signalValue, 0x4F);
  EXPECT_EQ(+frame.m.causeValue, 0x7E);
  EXPECT_EQ(+frame.m.presenceMask, kCallStatePresent | kNotificationIndicatorPresent | kSignalPresent | kCausePresent |
                                       kUserInformationPresent);
}

TEST(Q931FrameTest, ElementsThatAreAbsentLeaveTheirMembersClear) {
  const Frame frame(Q931Builder().UserUser().Done());
  Q931MessageRecord expected{};
  expected.protocolDiscriminator = 8;
  expected.callReferenceLength = frame.m.callReferenceLength;
  expected.callReferenceValue = frame.m.callReferenceValue;
  expected.messageType = frame.m.messageType;
  expected.presenceMask = kUserInformationPresent;
  const auto* octets = reinterpret_cast<const uint8_t*>(&frame.m);
  const auto* wanted = reinterpret_cast<const uint8_t*>(&expected);
  const size_t header = offsetof(Q931MessageRecord, userInformation);
  EXPECT_EQ(Octets(octets, octets + header), Octets(wanted, wanted + header));
}

TEST(Q931FrameTest, FirstOccurrenceCounts) {
  Frame frame(Q931Builder().Element(0x08, {0x80, 0x90}).Element(0x08, {0x80, 0x91}).UserUser().Done());
  EXPECT_EQ(+frame.m.causeValue, 0x90);
  // An element with a length that its slot refuses hides a later one that would fit.
  Frame hidden(Q931Builder().Element(0x1E, {1, 2, 3}).Element(0x1E, {1, 2}).UserUser().Done());
  EXPECT_FALSE(hidden.Has(kProgressIndicatorPresent));
  EXPECT_EQ(hidden.result, kQ931Decoded);
}

TEST(Q931FrameTest, RedirectingNumberIsNotKept) {
  Frame frame(Q931Builder().Element(0x74, {0x81, '1', '2'}).UserUser().Done());
  ASSERT_EQ(frame.result, kQ931Decoded);
  EXPECT_EQ(+frame.m.presenceMask, uint32_t{kUserInformationPresent});
  for (const uint8_t octet : frame.m.reservedRedirectingNumber) EXPECT_EQ(octet, 0);
}

TEST(Q931FrameTest, ElementLongerThanTheBufferReadsZeros) {
  // The claim of 6 is within the frame length, although only 2 octets are left.
  Frame frame(Q931Builder().UserUser().Element(0x29, {26, 11}, 6).Done());
  EXPECT_EQ(frame.result, kQ931Decoded);
  EXPECT_TRUE(frame.Has(kDateTimePresent));
  EXPECT_EQ(Octets(frame.m.dateTime, frame.m.dateTime + 6), (Octets{26, 11, 0, 0, 0, 0}));
}

TEST(Q931FrameTest, ElementLongerThanTheFrameIsPassedOver) {
  // The frame has 5 header octets and 5 of this element: a claim of 8 just fits, 9 does not.
  Frame fits(Q931Builder().Element(0x10, {1, 2, 3}, 8).Done());
  EXPECT_TRUE(fits.Has(kCallIdentityPresent));
  Frame beyond(Q931Builder().Element(0x10, {1, 2, 3}, 9).Done());
  EXPECT_FALSE(beyond.Has(kCallIdentityPresent));
  EXPECT_EQ(+beyond.m.callIdentityLength, 0);
}

TEST(Q931FrameTest, UserInformationMayEndWithItsElementButNotTwoOctetsLater) {
  const Octets information = EmptyBodyInformation();
  const auto exact = static_cast<int>(information.size()) + 1;
  EXPECT_EQ(Frame(Q931Builder().UserUser(information, exact).Done()).result, kQ931Decoded);
  // One octet short, the slack still holds the rest; two short, the decode ends at the limit.
  EXPECT_EQ(Frame(Q931Builder().UserUser(information, exact - 1).Done()).result, kQ931Decoded);
  Frame frame(Q931Builder().Element(0x08, {0x80, 0x90}).UserUser(information, exact - 2).Done());
  EXPECT_EQ(frame.result, kQ931Rejected);
  EXPECT_FALSE(frame.Has(kUserInformationPresent));
  EXPECT_EQ(+frame.m.causeValue, 0x90) << "the other elements stay";
}

TEST(Q931FrameTest, FailedUserInformationIsReleased) {
  // A body index of 7 after a nonStandardData flag is malformed; a Setup cut short leaves blocks.
  EXPECT_EQ(Frame(Q931Builder().UserUser(BitWriter().Bits(0, 4).Bits(7, 4)).Done()).result, kQ931Rejected);
  Octets cut = BitWriter().Bits(0, 8).Bits(0, 8).OpenType(test::ProtocolIdentifier(4));
  Frame frame(Q931Builder().UserUser(cut).Done());
  EXPECT_EQ(frame.result, kQ931Rejected);
  EXPECT_TRUE(+frame.m.userInformation.h323UuPdu.h323MessageBody.setup.protocolIdentifier.arcs == nullptr);
  // A Connect that ends before its conferenceID, which no status reports.
  const Octets connect = {0x02, 0x00, 0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, 0x04, 0x80, 0x02, 0x20, 0x7F};
  EXPECT_EQ(Frame(Q931Builder().UserUser(connect).Done()).result, kQ931Rejected);
}

// Callers in other languages use these numbers.
TEST(Q931FrameTest, EachElementHasItsBit) {
  constexpr struct {
    uint8_t identifier;
    uint32_t bit;
  } kBits[] = {{0x70, 0x1},    {0x6C, 0x2},    {0x08, 0x4},   {0x04, 0x10},  {0x14, 0x40},
               {0x29, 0x80},   {0x2C, 0x100},  {0x27, 0x200}, {0x1E, 0x400}, {0x34, 0x1000},
               {0x10, 0x2000}, {0x71, 0x4000}, {0x6D, 0x8000}};
  for (const auto& c : kBits) {
    EXPECT_EQ(+Frame(Q931Builder().Element(c.identifier, {0x81, '1'}).UserUser().Done()).m.presenceMask, c.bit | 0x8)
        << +c.identifier;
  }
}

TEST(Q931FrameTest, SingleOctetElementsArePassedOverFromTheFirstIdentifierAndHoweverMany) {
  for (const int identifier : {0x80, 0x90, 0xA1, 0xFF}) {
    const Octets octets(300, static_cast<uint8_t>(identifier));
    EXPECT_EQ(Frame(Q931Builder().Octets(octets).UserUser().Done()).result, kQ931Decoded) << identifier;
  }
}

TEST(Q931FrameTest, APositionIsLeftByAFindOnly) {
  const Octets octets = {8, 2, 0x12, 0x34, 5, 0x04, 3, 1, 2, 3, 0xA1, 0x08, 2, 0x80, 0x90};
  const Q931Frame frame{octets.data(), static_cast<uint32_t>(octets.size()), static_cast<uint16_t>(octets.size())};
  Q931Element element{77, 99};
  EXPECT_EQ(FindQ931Element(&frame, 0x7E, &element), kQ931Rejected);
  EXPECT_EQ(element.position, 77);
  EXPECT_EQ(element.length, 2) << "that of the last element";
  EXPECT_EQ(FindQ931Element(&frame, 0x04, &element), kQ931Decoded);
  EXPECT_EQ(element.position, 5);
  EXPECT_EQ(element.length, 3);

  Q931Element untouched{77, 99};
  const Q931Frame header{octets.data(), 5, 5};
  EXPECT_EQ(FindQ931Element(&header, 0x04, &untouched), kQ931Rejected);
  EXPECT_EQ(untouched.position, 77);
  EXPECT_EQ(untouched.length, 99);
}

TEST(Q931FrameTest, AFrameWithoutOctetsHasNoElements) {
  const Q931Frame frame{nullptr, 0, 9};
  Q931Element element{};
  EXPECT_EQ(FindQ931Element(&frame, 0x7E, &element), kQ931BadArgument);
}

}  // namespace
}  // namespace kelvra::h225
