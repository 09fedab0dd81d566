// Setup, Connect and the other call-signalling bodies.
#include <gtest/gtest.h>

#include "h225/common/protocol_version.h"
#include "h225/messages.h"
#include "kelvra/h225/call/answer_uuie.h"
#include "kelvra/h225/call/h323_user_information.h"
#include "kelvra/h225/call/information_uuie.h"
#include "kelvra/h225/call/release_complete_uuie.h"
#include "kelvra/h225/call/setup_uuie.h"
#include "per/decoder.h"

namespace kelvra::h225 {
namespace {

using test::Addition;
using test::Additions;
using test::BitWriter;
using test::ConnectRoot;
using test::Input;
using test::kMarker;
using test::Marked;
using test::NullChannel;
using test::OctetsOf;
using test::Owned;
using test::Rising;
using test::SetupRoot;
using test::TextOf;
using Octets = std::vector<uint8_t>;

TEST(SetupTest, FastStartElementsAreOpenTypes) {
  BitWriter list;
  list.Length(2).OpenType(NullChannel(11).Octets({0xEE, 0xEE, 0xEE})).OpenType(NullChannel(12));
  BitWriter w = SetupRoot(true);
  Additions(w, Addition(6, 7), 7).OpenType(list);
  Input input(Marked(w));
  Owned<SetupUUIE> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  ASSERT_EQ(+m->fastStartCount, 2);
  EXPECT_EQ(+m->fastStart[0].forwardLogicalChannelNumber, 11);
  EXPECT_EQ(+m->fastStart[1].forwardLogicalChannelNumber, 12) << "octets left in the first are passed over";
  EXPECT_EQ(input.Next(), kMarker);
  EXPECT_EQ(input.reader.openTypes.index, 0U);
}

TEST(SetupTest, FastStartElementsThatAreNotReachedStayZero) {
  BitWriter list;
  list.Length(3).OpenType(NullChannel(11));
  BitWriter w = SetupRoot(true);
  Additions(w, Addition(6, 7), 7).OpenType(list);
  Input input(w.Done());
  Owned<SetupUUIE> m;
  EXPECT_EQ(Decode(*m, input.reader), kDecoded) << "that the reader stands at its end is for others to see";
  ASSERT_EQ(+m->fastStartCount, 3);
  EXPECT_EQ(+m->fastStart[0].forwardLogicalChannelNumber, 11);
  const auto* unread = reinterpret_cast<const uint8_t*>(&m->fastStart[1]);
  EXPECT_EQ(test::OctetsAt(unread, 2 * sizeof m->fastStart[1]), Octets(2 * sizeof m->fastStart[1], 0));
}

TEST(SetupTest, MaintainConnectionFollowsItsOwnFlag) {
  BitWriter w = SetupRoot(true);
  Additions(w, Addition(11, 12), 12).OpenType({0x80});
  Input input(Marked(w));
  Owned<SetupUUIE> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->maintainConnection, 1U);
  EXPECT_EQ(+m->hasMultipleCalls, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(SetupTest, ScreeningIndicatorNullsAndUnknownAdditions) {
  BitWriter w = SetupRoot(true);
  Additions(w, Addition(13, 28) | Addition(15, 28) | Addition(17, 28) | Addition(24, 28) | Addition(26, 28), 28);
  w.OpenType(BitWriter().Length(2).Bits(1, 5).Octets({'e', 'n'}).Bits(31, 5).Octets(Octets(32, 'x')));
  w.OpenType(BitWriter().Bits(0b011, 3)).OpenType({0xFF, 0xFF});
  w.OpenType(BitWriter().Length(1).OpenType({1, 2})).OpenType({30});  // hopCount is beyond the known
  Input input(Marked(w));
  Owned<SetupUUIE> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  ASSERT_EQ(+m->languageCount, 2);
  EXPECT_EQ(TextOf(m->language[0]), "en");
  EXPECT_EQ(TextOf(m->language[1]), std::string(32, 'x'));
  EXPECT_EQ(+m->screeningIndicator.value, 1U);
  EXPECT_EQ(+m->hasSymmetricOperationRequired, 1U);
  EXPECT_EQ(+m->symmetricOperationRequired, 0);
  EXPECT_EQ(OctetsOf(m->parallelH245Control[0]), (Octets{1, 2}));
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(SetupTest, ConferenceGoalsAndCallTypes) {
  for (const uint32_t goal : {0U, 1U, 2U, 40U}) {
    BitWriter w;
    w.Bits(0, 8).OpenType(test::ProtocolIdentifier(4));
    test::EmptyEndpointType(w).Bit(false).Octets(Rising(1, 16)).Bit(true).NormallySmall(goal).OpenType(Octets{});
    w.Bit(true).NormallySmall(2).OpenType({1});
    Input input(Marked(w));
    Owned<SetupUUIE> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->conferenceGoal.choiceTag, goal);
    EXPECT_EQ(+m->conferenceGoal.isExtension, 1U);
    EXPECT_EQ(+m->callType.choiceTag, 0) << "discarded";
    EXPECT_EQ(+m->callType.isExtension, 1U);
    EXPECT_EQ(input.Next(), kMarker);
  }
  BitWriter w;
  w.Bits(0, 8).OpenType(test::ProtocolIdentifier(4));
  test::EmptyEndpointType(w).Bit(false).Octets(Rising(1, 16)).Bits(3, 3);
  Input input(Marked(w));
  Owned<SetupUUIE> m;
  EXPECT_EQ(Decode(*m, input.reader), kMalformed);
}

TEST(ConnectTest, UnknownAdditionsAreSkipped) {
  BitWriter w = ConnectRoot(true);
  Additions(w, Addition(11, 17) | 0b11, 17).OpenType({0xFF}).OpenType({1, 2}).OpenType({3});
  Input input(Marked(w));
  Owned<ConnectUUIE> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->hasFastConnectRefused, 1U);
  EXPECT_EQ(+m->fastConnectRefused, 0);
  EXPECT_EQ(input.Next(), kMarker);
}

// presentationIndicator as an open type: root alternative `tag`.
BitWriter Presentation(uint32_t tag) { return BitWriter().Bits(tag, 3); }

TEST(ConnectTest, BothConnectionFlags) {
  BitWriter w = ConnectRoot(true);
  Additions(w, 0b11, 7).OpenType({0x80}).OpenType({0x80});
  Input input(Marked(w));
  Owned<ConnectUUIE> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->multipleCalls, 1U);
  EXPECT_EQ(+m->maintainConnection, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(ConnectTest, MultipleCallsAloneTakesTheNextAdditionAsMaintainConnection) {
  // The open type behind multipleCalls is that of an extension alternative: its first bit is 1.
  BitWriter w = ConnectRoot(true);
  Additions(w, Addition(5, 11) | Addition(9, 11) | Addition(10, 11), 11);
  w.OpenType({0x00}).OpenType({0x80}).OpenType(Presentation(2));
  w.OpenType(BitWriter().Bits(0b011, 3));
  Input input(Marked(w));
  Owned<ConnectUUIE> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->multipleCalls, 0U);
  EXPECT_EQ(+m->hasMaintainConnection, 0U);
  EXPECT_EQ(+m->maintainConnection, 1U);
  EXPECT_EQ(+m->presentationIndicator.choiceTag, 2) << "from the open type after its own";
  EXPECT_EQ(+m->screeningIndicator.value, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(ConnectTest, MaintainConnectionAloneIsReadAsTheNextAddition) {
  BitWriter w = ConnectRoot(true);
  Additions(w, Addition(6, 10) | Addition(9, 10), 10).OpenType(Presentation(1)).OpenType(Presentation(2));
  Input input(w);
  Owned<ConnectUUIE> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->hasMaintainConnection, 1U);
  EXPECT_EQ(+m->maintainConnection, 0U);
  EXPECT_EQ(+m->presentationIndicator.choiceTag, 1);
  EXPECT_EQ(input.Next(), 1U) << "the open type of presentationIndicator is left over";
}

TEST(AlertingTest, MaintainConnectionFollowsItsOwnFlag) {
  BitWriter w;
  w.Bits(0b10, 2).OpenType(test::ProtocolIdentifier(4));
  test::EmptyEndpointType(w);
  Additions(w, Addition(6, 7), 7).OpenType({0x80});
  Input input(Marked(w));
  Owned<AlertingUUIE> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->maintainConnection, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(ReleaseCompleteTest, Reasons) {
  for (uint32_t tag = 12; tag < 16; ++tag) {
    Input input(BitWriter().Bits(tag, 5).Octets(Rising(1, 4)));
    Owned<ReleaseCompleteReason> m;
    EXPECT_EQ(Decode(*m, input.reader), kMalformed);
  }
  for (const uint32_t tag : {0U, 6U, 10U, 11U, 261U, 262U}) {
    Input input(Marked(BitWriter().Bit(true).NormallySmall(tag).OpenType(Rising(1, 16))));
    Owned<ReleaseCompleteReason> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->choiceTag, tag & 0xFF);
    EXPECT_EQ(OctetsOf(m->replaceWithConferenceInvite), tag == 6 ? Rising(1, 16) : Octets());
    EXPECT_EQ(input.Next(), kMarker);
  }
}

// What the mode is after a CallStatus body with this identifier.
int32_t ModeAfter(const Octets& identifier) {
  BitWriter w;
  w.Bits(0, 3).OpenType(identifier).Bit(false).Octets(Rising(1, 16));
  Input input(Marked(w));
  Owned<CallStatusUUIE> m;
  EXPECT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(input.Next(), kMarker);
  return ProtocolVersionMode();
}

TEST(ProtocolVersionTest, VersionsOneToFourSetTheMode) {
  constexpr int32_t kModes[] = {0, 0, 1, 2};
  for (uint8_t version = 1; version <= 4; ++version) {
    EXPECT_EQ(ModeAfter(test::ProtocolIdentifier(version)), kModes[version - 1]);
    EXPECT_EQ(ModeAfter(test::ProtocolIdentifier(0)), kModes[version - 1]);
    EXPECT_EQ(ModeAfter(test::ProtocolIdentifier(5)), kModes[version - 1]);
    EXPECT_EQ(ModeAfter({0x00, 0x08, 0x91, 0x4A, 0x02}), kModes[version - 1]) << "five arcs";
  }
}

// An H323-UU-PDU whose body is `empty`.
TEST(H323UUPDUTest, TwoAdditionsAtMost) {
  BitWriter w = test::EmptyBodyPdu(true);
  Additions(w, 0b01, 2).OpenType({0x80});
  Input input(Marked(w));
  Owned<H323UUPDU> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->h323MessageBody.isExtension, 1U);
  EXPECT_EQ(+m->h323MessageBody.choiceTag, 1);
  EXPECT_EQ(+m->h245TunnellingPresent, 1U);
  EXPECT_EQ(+m->h245Tunnelling, 1U);
  EXPECT_EQ(+m->h245ControlPresent, 0U);
  EXPECT_EQ(+m->genericDataPresent, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(H323UUPDUTest, ControlCountKeepsItsLow8BitsAndTheReaderResumes) {
  BitWriter list;
  list.Length(300);
  for (uint32_t i = 0; i < 300; ++i) list.OpenType({static_cast<uint8_t>(i)});
  BitWriter w = test::EmptyBodyPdu(true);
  Additions(w, Addition(2, 11) | Addition(6, 11) | 1, 11).OpenType(list).OpenType({1}).OpenType({2});
  Input input(Marked(w));
  Owned<H323UUPDU> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  ASSERT_EQ(+m->h245ControlCount, 44);
  EXPECT_EQ(OctetsOf(m->h245Control[43]), Octets{43});
  EXPECT_EQ(+m->provisionalRespToH245TunnellingPresent, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(H323UUPDUTest, UnknownBodiesAreSkipped) {
  for (const uint32_t tag : {6U, 63U, 256U, 258U}) {
    Input input(Marked(BitWriter().Bits(0, 2).Bit(true).NormallySmall(tag).OpenType(Octets(60, 0xFF))));
    Owned<H323UUPDU> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded) << tag;
    EXPECT_EQ(+m->h323MessageBody.choiceTag, tag & 0xFF);
    EXPECT_EQ(+m->h323MessageBody.status.protocolIdentifier.count, 0U) << tag;
    EXPECT_EQ(input.Next(), kMarker);
  }
  Input input(BitWriter().Bits(0, 3).Bits(7, 3).Octets(Rising(1, 9)));
  Owned<H323UUPDU> m;
  EXPECT_EQ(Decode(*m, input.reader), kMalformed);
}

TEST(H323UserInformationTest, UserDataOf131Octets) {
  BitWriter w = test::EmptyBodyInformation(true);
  w.Bit(true).Align().Bits(0x44, 8).Bits(130, 8).Octets(Rising(1, 131));
  Additions(w, 1, 1).OpenType({1});
  Input input(Marked(w));
  Owned<H323UserInformation> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->userData.protocolDiscriminator, 0x44);
  EXPECT_EQ(OctetsOf(m->userData.userInformation), Rising(1, 131));
  EXPECT_EQ(+m->userDataExtension, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

}  // namespace
}  // namespace kelvra::h225
