#include "kelvra/h225/common/addresses.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "per/decoder.h"

namespace kelvra::h225 {
namespace {

using test::BitWriter;
using test::Input;
using test::kMarker;
using test::Marked;
using test::OctetsOf;
using test::Owned;
using test::Rising;
using test::TextOf;
using Octets = std::vector<uint8_t>;

BitWriter Nibbles(std::initializer_list<uint8_t> codes) {
  BitWriter w;
  for (const uint8_t code : codes) w.Bits(code, 4);
  return w;
}

// An AliasAddress that is extension alternative `index`.
BitWriter ExtensionAlias(uint32_t index, const BitWriter& value) {
  return BitWriter().Bit(true).NormallySmall(index).OpenType(value);
}

BitWriter InternetName(uint32_t length, const std::string& text) {
  return BitWriter().Bits(length - 1, 16).Octets(Octets(text.begin(), text.end()));
}

TEST(AliasAddressTest, OddDigitsLeaveTheReaderInsideAnOctet) {
  Input input(BitWriter().Bits(0, 2).Bits(2, 7).Octets({0x45, 0x6F}));
  Owned<AliasAddress> alias;
  ASSERT_EQ(Decode(*alias, input.reader), kDecoded);
  EXPECT_EQ(OctetsOf(alias->dialedDigits), (Octets{4, 5, 6}));
  EXPECT_EQ(PerReadBits(input.reader, 4), 0xFU);
}

TEST(AliasAddressTest, H323IdTakes1To256Characters) {
  for (const uint32_t length : {1U, 5U, 256U}) {
    BitWriter w;
    w.Bits(1, 2).Align().Bits(length - 1, 8);
    for (uint32_t i = 0; i < length; ++i) w.Bits(0x0141 + i, 16);
    Input input(Marked(w));
    Owned<AliasAddress> alias;
    ASSERT_EQ(Decode(*alias, input.reader), kDecoded);
    EXPECT_EQ(+alias->choiceTag, 1);
    EXPECT_EQ(+alias->h323ID.length, length);
    const std::u16string text = TextOf(alias->h323ID);
    ASSERT_EQ(text.size(), length);
    EXPECT_EQ(text.front(), 0x0141);
    EXPECT_EQ(text.back(), 0x0140 + length);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(AliasAddressTest, ReaderResumesBehindTheOpenTypeWhateverItsStringClaims) {
  for (const uint32_t index : {0U, 2U}) {
    Input input(Marked(ExtensionAlias(index, InternetName(3, "abcdefgh"))));
    Owned<AliasAddress> alias;
    ASSERT_EQ(Decode(*alias, input.reader), kDecoded);
    EXPECT_EQ(+alias->choiceTag, index);
    EXPECT_EQ(+alias->isExtension, 1U);
    EXPECT_EQ(TextOf(index == 0 ? alias->urlID : alias->emailID), "abc");
    EXPECT_EQ(input.Next(), kMarker);
    EXPECT_EQ(input.reader.openTypes.index, 0U);
  }
}

TEST(AliasAddressTest, InternetNamesEndAt512Characters) {
  const std::string longest(512, 'u');
  Input input(Marked(ExtensionAlias(0, InternetName(512, longest))));
  Owned<AliasAddress> alias;
  ASSERT_EQ(Decode(*alias, input.reader), kDecoded);
  EXPECT_EQ(TextOf(alias->urlID), longest);
  EXPECT_EQ(input.Next(), kMarker);

  for (const uint32_t index : {0U, 2U}) {
    Input over(ExtensionAlias(index, InternetName(513, longest + 'u')));
    Owned<AliasAddress> refused;
    EXPECT_EQ(Decode(*refused, over.reader), kExhausted);
    EXPECT_TRUE(+refused->urlID.data == nullptr);
    EXPECT_EQ(over.reader.openTypes.index, 1U) << "a failure leaves the slot taken";
  }
}

TEST(AliasAddressTest, UnknownExtensionsAreSkippedByTheirFullIndex) {
  for (const uint32_t index : {5U, 63U, 64U, 256U, 257U, 259U}) {
    Input input(Marked(ExtensionAlias(index, InternetName(3, "abc"))));
    Owned<AliasAddress> alias;
    ASSERT_EQ(Decode(*alias, input.reader), kDecoded) << index;
    EXPECT_EQ(+alias->choiceTag, index & 0xFF);
    EXPECT_EQ(+alias->isExtension, 1U);
    EXPECT_EQ(+alias->urlID.length, 0U) << index;
    EXPECT_TRUE(+alias->urlID.data == nullptr) << index;
    EXPECT_EQ(input.Next(), kMarker) << index;
  }
}

TEST(AddressesTest, ImpossibleIndicesAreMalformed) {
  Input input(BitWriter().Bits(7, 4).Octets(Rising(1, 16)));
  Owned<TransportAddress> address;
  EXPECT_EQ(Decode(*address, input.reader), kMalformed);
  Input nested(ExtensionAlias(3, BitWriter().Bits(5, 4)));
  Owned<AliasAddress> party;
  EXPECT_EQ(Decode(*party, nested.reader), kMalformed) << "within an open type";
}

TEST(TransportAddressTest, UnknownExtensionKeepsItsIndex) {
  Input input(Marked(BitWriter().Bit(true).NormallySmall(3).OpenType(Rising(1, 200))));
  Owned<TransportAddress> address;
  ASSERT_EQ(Decode(*address, input.reader), kDecoded);
  EXPECT_EQ(+address->choiceTag, 3);
  EXPECT_EQ(+address->isExtension, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

// An ipSourceRoute up to its list of `count` entries, of which `sent` are in the message.
BitWriter SourceRoute(uint32_t count, uint32_t sent, bool extended = false) {
  BitWriter w;
  w.Bits(1, 4).Bit(extended).Octets({192, 0, 2, 1}).Bits(5060, 16).Length(count);
  for (uint32_t i = 0; i < sent; ++i) w.Bits(0x0A000000 + i, 32);
  return w;
}

TEST(IpSourceRouteTest, CountKeepsItsLow8Bits) {
  constexpr struct { uint32_t sent, kept; } kCases[] = {{0, 0}, {2, 2}, {255, 255}, {256, 0}, {300, 44}};
  for (const auto& c : kCases) {
    Input input(Marked(SourceRoute(c.sent, c.kept).Bits(1, 2)));
    Owned<TransportAddress> address;
    ASSERT_EQ(Decode(*address, input.reader), kDecoded);
    const TransportAddress::IpSourceRoute& source = address->ipSourceRoute;
    EXPECT_EQ(+address->choiceTag, 1);
    EXPECT_EQ(OctetsOf(source.ip), (Octets{192, 0, 2, 1}));
    EXPECT_EQ(+source.port, 5060);
    EXPECT_EQ(+source.routeCount, c.kept);
    EXPECT_EQ(+source.route == nullptr, c.kept == 0);
    for (uint32_t i = 0; i < c.kept; ++i) {
      EXPECT_EQ(OctetsOf(source.route[i]), (Octets{10, 0, 0, static_cast<uint8_t>(i)}));
    }
    EXPECT_EQ(+source.routing.choiceTag, 1);
    EXPECT_EQ(input.Next(), kMarker) << c.sent;
  }
}

TEST(IpSourceRouteTest, RoutingExtensionOverwritesTheOuterTag) {
  for (const uint32_t index : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 40U}) {
    Input input(Marked(SourceRoute(1, 1).Bit(true).NormallySmall(index).OpenType({1, 2})));
    Owned<TransportAddress> address;
    ASSERT_EQ(Decode(*address, input.reader), kDecoded);
    EXPECT_EQ(+address->choiceTag, index);
    EXPECT_EQ(+address->isExtension, 0U);
    EXPECT_EQ(+address->ipSourceRoute.routing.choiceTag, 0);
    EXPECT_EQ(+address->ipSourceRoute.routing.isExtension, 1U);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(IpSourceRouteTest, AdditionsBehindRoutingAreSkipped) {
  BitWriter w = SourceRoute(1, 1, true);
  w.Bits(0, 2);
  test::Additions(w, 0b101, 3).OpenType({1}).OpenType({2, 3});
  Input input(Marked(w));
  Owned<TransportAddress> address;
  ASSERT_EQ(Decode(*address, input.reader), kDecoded);
  EXPECT_EQ(+address->ipSourceRoute.isExtended, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(PartyNumberTest, ImpossibleIndicesAreMalformed) {
  for (const uint32_t tag : {5U, 6U, 7U}) {
    Input input(BitWriter().Bits(tag, 4).Octets(Rising(1, 8)));
    Owned<PartyNumber> number;
    EXPECT_EQ(Decode(*number, input.reader), kMalformed);
  }
  for (const uint32_t tag : {0U, 3U}) {
    for (const uint32_t type : {6U, 7U}) {
      Input input(BitWriter().Bits(tag, 4).Bits(type, 4).Octets(Rising(1, 8)));
      Owned<PartyNumber> number;
      EXPECT_EQ(Decode(*number, input.reader), kMalformed);
      EXPECT_EQ(+number->e164Number.publicNumberDigits.length, 0U) << "nothing is read behind it";
    }
  }
}

TEST(PartyNumberTest, ExtensionIndexIsDiscarded) {
  Input input(Marked(BitWriter().Bit(true).NormallySmall(2).OpenType({1, 2, 3})));
  Owned<PartyNumber> number;
  ASSERT_EQ(Decode(*number, input.reader), kDecoded);
  EXPECT_EQ(+number->choiceTag, 0);
  EXPECT_EQ(+number->isExtension, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(PartyNumberTest, TypeOfNumberKeepsItsExtensionIndex) {
  Input input(Marked(BitWriter().Bits(0, 4).Bit(true).NormallySmall(2).OpenType({9}).Bits(0, 7).Align().Bits(4, 4)));
  Owned<PartyNumber> number;
  ASSERT_EQ(Decode(*number, input.reader), kDecoded);
  EXPECT_EQ(+number->e164Number.publicTypeOfNumber.choiceTag, 2);
  EXPECT_EQ(+number->e164Number.publicTypeOfNumber.isExtension, 1U);
  EXPECT_EQ(OctetsOf(number->e164Number.publicNumberDigits), (Octets{4}));
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(MobileUIMTest, ExtensionIndexIsDiscarded) {
  Input input(Marked(BitWriter().Bit(true).NormallySmall(1).OpenType({1})));
  Owned<MobileUIM> uim;
  ASSERT_EQ(Decode(*uim, input.reader), kDecoded);
  EXPECT_EQ(+uim->choiceTag, 0);
  EXPECT_EQ(+uim->isExtension, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(ANSI41UIMTest, AllMembers) {
  BitWriter w;
  w.Bit(true).Bits(0x7FF, 11);
  w.Bits(13, 4).Octets(Nibbles({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}));  // imsi
  w.Bits(0, 4).Align().Bits(0x234, 12);                                                   // min
  w.Bits(0, 4).Align().Bits(0x345, 12);                                                   // mdn
  w.Bits(0, 4).Align().Bits(0x456, 12);                                                   // msisdn
  w.Octets(Octets(8, 0x22));                                                              // esn, no length
  w.Bits(0, 4).Align().Bits(0x567, 12);                                                   // mscid
  w.Bits(1, 2).Bits(3, 2).Octets({0xCD, 0xEF});                                           // system-id: mid
  w.Octets({0x71}).Octets({0x72}).Octets({0x73});
  w.Octets(Octets(8, 0xBB));                    // sesn, no length
  w.Bits(1, 4).Octets({0x67, 0x89});            // soc
  test::Additions(w, 1, 1).OpenType(Octets{});  // an unknown addition
  Input input(Marked(w));
  Owned<ANSI41UIM> uim;
  ASSERT_EQ(Decode(*uim, input.reader), kDecoded);
  EXPECT_EQ(TextOf(uim->imsi), "#*0123456789abc=");
  EXPECT_EQ(TextOf(uim->min), "012");
  EXPECT_EQ(TextOf(uim->mdn), "123");
  EXPECT_EQ(TextOf(uim->msisdn), "234");
  EXPECT_EQ(TextOf(uim->esn), std::string(16, '0'));
  EXPECT_EQ(TextOf(uim->mscid), "345");
  EXPECT_EQ(+uim->systemId.choiceTag, 1);
  EXPECT_EQ(TextOf(uim->systemId.mid), "abc=");
  EXPECT_EQ(OctetsOf(uim->systemMyTypeCode), Octets{0x71});
  EXPECT_EQ(OctetsOf(uim->systemAccessType), Octets{0x72});
  EXPECT_EQ(OctetsOf(uim->qualificationInformationCode), Octets{0x73});
  EXPECT_EQ(TextOf(uim->sesn), std::string(16, '9'));
  EXPECT_EQ(TextOf(uim->soc), "4567");
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(ANSI41UIMTest, SingleOctetsAreAligned) {
  // Only systemMyTypeCode and the mandatory system-id, one character long: bits are left in its octet.
  BitWriter w;
  w.Bit(false).Bits(0b00000010000, 11).Bits(0, 2).Bits(0, 2).Align().Bits(0x9F, 8).Bits(0x66, 8);
  Input input(Marked(w));
  Owned<ANSI41UIM> uim;
  ASSERT_EQ(Decode(*uim, input.reader), kDecoded);
  EXPECT_EQ(TextOf(uim->systemId.sid), "7");
  EXPECT_EQ(OctetsOf(uim->systemMyTypeCode), Octets{0x66});
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(ANSI41UIMTest, SystemIdExtensionIndexIsDiscarded) {
  BitWriter w;
  w.Bits(0, 12).Bit(true).NormallySmall(1).OpenType({5});
  Input input(Marked(w));
  Owned<ANSI41UIM> uim;
  ASSERT_EQ(Decode(*uim, input.reader), kDecoded);
  EXPECT_EQ(+uim->systemId.choiceTag, 0);
  EXPECT_EQ(+uim->systemId.isExtension, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(GSMUIMTest, TmsiIsReadAsCharacters) {
  BitWriter w;
  w.Bit(false).Bits(0x3F, 6);
  w.Bits(0, 4).Align().Bits(0x234, 12);   // imsi
  w.Bits(3, 2).Align().Bits(0x2345, 16);  // tmsi: 4 characters in 2 octets
  w.Bits(0, 4).Align().Bits(0x567, 12);   // msisdn
  w.Bits(0, 1).Align();                   // imei: 15
  for (int i = 0; i < 15; ++i) w.Bits(0xB, 4);
  w.Bits(0, 2).Align().Bits(0x2, 4);     // hplmn
  w.Bits(2, 2).Align().Bits(0x345, 12);  // vplmn
  Input input(Marked(w));
  Owned<GSMUIM> uim;
  ASSERT_EQ(Decode(*uim, input.reader), kDecoded);
  EXPECT_EQ(TextOf(uim->imsi), "012");
  EXPECT_EQ(TextOf(uim->tmsi), "0123");
  EXPECT_EQ(TextOf(uim->msisdn), "345");
  EXPECT_EQ(TextOf(uim->imei), std::string(15, '9'));
  EXPECT_EQ(TextOf(uim->hplmn), "0");
  EXPECT_EQ(TextOf(uim->vplmn), "123");
  EXPECT_EQ(input.Next(), kMarker);
}

template <class R>
void ExpectExhausted() {
  Input input(Octets{});
  Owned<R> record;
  EXPECT_EQ(Decode(*record, input.reader), kExhausted);
  EXPECT_TRUE(record.IsZero());
}

TEST(AddressesTest, DecodersEnteredAtTheEndWriteNothing) {
  ExpectExhausted<TransportAddress>();
  ExpectExhausted<PublicPartyNumber>();
  ExpectExhausted<PrivatePartyNumber>();
  ExpectExhausted<PartyNumber>();
  ExpectExhausted<ANSI41UIM>();
  ExpectExhausted<GSMUIM>();
  ExpectExhausted<MobileUIM>();
  ExpectExhausted<AliasAddress>();
  ExpectExhausted<ExtendedAliasAddress>();
}

TEST(AddressesTest, TruncatedStringKeepsItsLengthAndFailsTheNextDecoder) {
  Input input(BitWriter().Bits(4, 4).Octets(Rising(1, 14)));
  Owned<TransportAddress> address;
  EXPECT_EQ(Decode(*address, input.reader), kDecoded);
  EXPECT_EQ(+address->netBios.length, 16U);
  EXPECT_TRUE(+address->netBios.data == nullptr);
  Owned<TransportAddress> next;
  EXPECT_EQ(Decode(*next, input.reader), kExhausted);
}

TEST(ExtendedAliasAddressTest, ScreeningIndicatorIsReadOneBitShort) {
  // networkProvided: extension bit 0, then 3 in two bits; the last bit stays behind.
  Input input(BitWriter().Bits(0b011, 3).Bits(0, 2).Bits(0, 7).Align().Bits(4, 4).Bits(0b010, 3).Bits(0b011, 3));
  Owned<ExtendedAliasAddress> alias;
  ASSERT_EQ(Decode(*alias, input.reader), kDecoded);
  EXPECT_EQ(+alias->presentationIndicator.choiceTag, 2);
  EXPECT_EQ(+alias->screeningIndicator.value, 1U);
  EXPECT_EQ(PerReadBit(input.reader), 1U);
}

}  // namespace
}  // namespace kelvra::h225
