// H.225.0 readings that deviate from the ASN.1, so the vectors leave them out.
#include <gtest/gtest.h>

#include "h225/common/protocol_version.h"
#include "h225/decoding.h"
#include "kelvra/h225/call/answer_uuie.h"
#include "kelvra/h225/call/information_uuie.h"
#include "kelvra/h225/common/addresses.h"
#include "kelvra/h225/ras/disengage.h"
#include "kelvra/h225/ras/resources_available.h"
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

TEST(ScreeningIndicatorTest, TwoBitsAreReadOfThree) {
  constexpr struct {
    uint32_t sent, kept;  // the extension bit and the value as sent; the value as kept
  } kCases[] = {{0b000, 0}, {0b001, 0}, {0b010, 1}, {0b011, 1}, {0b100, 2}, {0b111, 3}};
  for (const auto& c : kCases) {
    Input input(BitWriter().Bits(c.sent, 3).Bits(0b10101, 5));
    Owned<ScreeningIndicator> indicator;
    ASSERT_EQ(Decode(*indicator, input.reader), kDecoded);
    EXPECT_EQ(+indicator->value, c.kept);
    EXPECT_EQ(+indicator->isExtended, 0U);
    EXPECT_EQ(input.reader.bitOffset, 2U);
  }
}

TEST(GSMUIMTest, TmsiIsReadAsCharacters) {
  BitWriter w;
  w.Bit(false).Bits(0b010010, 6);
  w.Bits(3, 2).Align().Bits(0x2345, 16);  // tmsi: 4 characters in 2 octets
  w.Bits(0, 2).Align().Bits(0x2, 4);      // hplmn
  Input input(Marked(w));
  Owned<GSMUIM> uim;
  ASSERT_EQ(Decode(*uim, input.reader), kDecoded);
  EXPECT_EQ(TextOf(uim->tmsi), "0123");
  EXPECT_EQ(TextOf(uim->hplmn), "0");
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(ANSI41UIMTest, SingleOctetsAreAligned) {
  // Three single octets after the mandatory system-id, one character long, which leaves bits in its octet.
  BitWriter w;
  w.Bit(false).Bits(0b00000011100, 11).Bits(0, 2).Bits(0, 2).Align().Bits(0x9F, 8).Octets({0x66, 0x77, 0x88});
  Input input(Marked(w));
  Owned<ANSI41UIM> uim;
  ASSERT_EQ(Decode(*uim, input.reader), kDecoded);
  EXPECT_EQ(TextOf(uim->systemId.sid), "7");
  EXPECT_EQ(OctetsOf(uim->systemMyTypeCode), Octets{0x66});
  EXPECT_EQ(OctetsOf(uim->systemAccessType), Octets{0x77});
  EXPECT_EQ(OctetsOf(uim->qualificationInformationCode), Octets{0x88});
  EXPECT_EQ(input.Next(), kMarker);
}

// A url-ID or an email-ID that claims `length` characters.
BitWriter InternetName(uint32_t alternative, uint32_t length) {
  const BitWriter name = BitWriter().Bits(length - 1, 16).Octets(Octets(length, 'u'));
  return BitWriter().Bit(true).NormallySmall(alternative).OpenType(name);
}

TEST(AliasAddressTest, InternetNamesEndAt512Characters) {
  for (const uint32_t alternative : {0U, 2U}) {
    Input input(Marked(InternetName(alternative, 512)));
    Owned<AliasAddress> alias;
    ASSERT_EQ(Decode(*alias, input.reader), kDecoded);
    EXPECT_EQ(OctetsOf(alternative == 0 ? alias->urlID : alias->emailID), Octets(512, 'u'));
    EXPECT_EQ(input.Next(), kMarker);

    Input over(InternetName(alternative, 513));
    Owned<AliasAddress> refused;
    EXPECT_EQ(Decode(*refused, over.reader), kExhausted);
    EXPECT_TRUE(+refused->urlID.data == nullptr);
    EXPECT_EQ(over.reader.openTypes.index, 1U) << "a failure leaves the slot taken";
  }
}

// An ipSourceRoute up to its routing.
BitWriter SourceRoute() { return BitWriter().Bits(1, 4).Bit(false).Octets({192, 0, 2, 1}).Bits(5060, 16).Length(0); }

TEST(IpSourceRouteTest, RoutingExtensionOverwritesTheOuterTag) {
  for (const uint32_t index : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 40U}) {
    Input input(Marked(SourceRoute().Bit(true).NormallySmall(index).OpenType({1, 2})));
    Owned<TransportAddress> address;
    ASSERT_EQ(Decode(*address, input.reader), kDecoded);
    EXPECT_EQ(+address->choiceTag, index);
    EXPECT_EQ(+address->isExtension, 0U);
    EXPECT_EQ(+address->ipSourceRoute.routing.choiceTag, 0);
    EXPECT_EQ(+address->ipSourceRoute.routing.isExtension, 1U);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

// A Connect body up to its extension additions.
BitWriter ConnectRoot() {
  BitWriter w;
  w.Bit(true).Bit(false).OpenType(test::ProtocolIdentifier(4));
  return test::EmptyEndpointType(w).Octets(Rising(0x70, 16));
}

// presentationIndicator as an open type: root alternative `tag`.
BitWriter Presentation(uint32_t tag) { return BitWriter().Bits(tag, 3); }

TEST(ConnectTest, MultipleCallsAloneTakesTheNextAdditionAsMaintainConnection) {
  // The open type after multipleCalls is that of an extension alternative: its first bit is 1.
  BitWriter w = ConnectRoot();
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
  BitWriter w = ConnectRoot();
  Additions(w, Addition(6, 10) | Addition(9, 10), 10).OpenType(Presentation(1)).OpenType(Presentation(2));
  Input input(w);
  Owned<ConnectUUIE> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->hasMaintainConnection, 1U);
  EXPECT_EQ(+m->maintainConnection, 0U);
  EXPECT_EQ(+m->presentationIndicator.choiceTag, 1);
  EXPECT_EQ(input.Next(), 1U) << "the open type of presentationIndicator is left over";
}

// The mode after a CallStatus body with this identifier.
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

TEST(ResourcesAvailableTest, CountOfProtocolsIs8Bits) {
  for (const uint32_t count : {0U, 1U, 127U, 128U, 255U}) {
    BitWriter w;
    w.Bits(0, 5).Align().Bits(0, 16).OpenType(test::ProtocolIdentifier(4));
    w.Bits(0, 7).Align().Bits('E', 16).Bits(count, 8);
    for (uint32_t i = 0; i < count; ++i) w.Bits(7, 5).Bits(0, 2);  // voice
    Input input(Marked(w.Bit(true)));
    Owned<ResourcesAvailableIndicate> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded) << count;
    ASSERT_EQ(+m->protocolsCount, count);
    EXPECT_EQ(+m->protocols == nullptr, count == 0);
    for (uint32_t i = 0; i < count; ++i) EXPECT_EQ(+m->protocols[i].choiceTag, 7);
    EXPECT_EQ(+m->almostOutOfResources, 1U);
    EXPECT_EQ(input.Next(), kMarker);
  }
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
