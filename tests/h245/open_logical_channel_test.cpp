#include "kelvra/h245/channels/open_logical_channel.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "kelvra/h245/channels/data_type.h"
#include "kelvra/h245/channels/h2250_parameters.h"
#include "per/decoder.h"

namespace kelvra::h245 {
namespace {

using test::Additions;
using test::BitWriter;
using test::DecodeH245;
using test::Input;
using test::kMarker;
using test::Marked;
using test::OctetsAt;
using test::Owned;
using Octets = std::vector<uint8_t>;

// DataType: nullData.
BitWriter& NullData(BitWriter& w) { return w.Bits(1, 4); }

// Forward multiplexParameters: none.
BitWriter& NoParameters(BitWriter& w) { return w.Bit(true).NormallySmall(1).OpenType({0xEE, 0xEE}); }

BitWriter Number(uint16_t value) { return BitWriter().Bits(value - 1U, 16); }

// The ten presence bits of H2250LogicalChannelParameters, in wire order.
enum Present : uint32_t {
  kNonStandard = 0x200,
  kAssociatedSessionID = 0x100,
  kMediaControlChannel = 0x020,
  kSilenceSuppression = 0x008,
  kDestination = 0x004,
  kDynamicPayloadType = 0x002,
  kMediaPacketization = 0x001,
};

BitWriter H2250(uint32_t present, bool extended = false) { return BitWriter().Bit(extended).Bits(present, 10); }

TEST(OpenLogicalChannelTest, NoneLeavesTheBodyEmptyAndTheReaderBehindIt) {
  BitWriter w;
  w.Bits(0, 2).Align().Bits(6, 16).Bits(0b01, 2).Align().Bits(65535, 16);
  NoParameters(NullData(w));
  Input input(Marked(w));
  Owned<OpenLogicalChannel> channel;
  DecodeH245(*channel, input.reader);
  const auto& forward = channel->forwardLogicalChannelParameters;
  EXPECT_EQ(+channel->forwardLogicalChannelNumber, 7);
  EXPECT_EQ(+forward.portNumber, 65535);
  EXPECT_EQ(+forward.multiplexParameters.isExtension, 1U);
  EXPECT_EQ(+forward.multiplexParameters.choiceTag, 1);
  EXPECT_EQ(+forward.multiplexParameters.h2250LogicalChannelParameters.sessionID, 0);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(OpenLogicalChannelTest, ExtensionIndex256IsNotTheH2250Parameters) {
  BitWriter w;
  w.Bits(0, 2).Align().Bits(6, 16).Bits(0, 2);
  NullData(w).Bit(true).NormallySmall(256).OpenType(Octets(8, 0xFF));
  Input input(Marked(w));
  Owned<OpenLogicalChannel> channel;
  DecodeH245(*channel, input.reader);
  const auto& parameters = channel->forwardLogicalChannelParameters.multiplexParameters;
  EXPECT_EQ(+parameters.h2250LogicalChannelParameters.hasMediaChannel, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(OpenLogicalChannelTest, ImpossibleRootIndexDecodesNothing) {
  BitWriter w;
  w.Bits(0, 2).Align().Bits(0, 16).Bits(0, 2);
  NullData(w).Bits(3, 3);
  Input input(Marked(w));
  Owned<OpenLogicalChannel> channel;
  DecodeH245(*channel, input.reader);
  EXPECT_EQ(+channel->forwardLogicalChannelParameters.multiplexParameters.choiceTag, 3);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(OpenLogicalChannelTest, ForwardAdditions) {
  constexpr struct {
    uint32_t count, bitmap;
    uint16_t dependency, replacement;
  } kCases[] = {{1, 0b1, 11, 0}, {2, 0b01, 0, 12}, {3, 0b111, 11, 12}, {3, 0b001, 0, 0}, {5, 0b10011, 11, 0}};
  for (const auto& c : kCases) {
    BitWriter w;
    w.Bits(0, 2).Align().Bits(6, 16).Bits(0b10, 2);
    NoParameters(NullData(w));
    Additions(w, c.bitmap, c.count);
    if (c.dependency != 0) w.OpenType(Number(c.dependency));
    if (c.replacement != 0) w.OpenType(Number(c.replacement));
    for (uint32_t i = 2; i < c.count; ++i) {
      if ((c.bitmap >> (c.count - 1 - i) & 1) != 0) w.OpenType({1, 2, 3});
    }
    Input input(Marked(w));
    Owned<OpenLogicalChannel> channel;
    DecodeH245(*channel, input.reader);
    const auto& forward = channel->forwardLogicalChannelParameters;
    EXPECT_EQ(+forward.hasForwardLogicalChannelDependency, c.dependency != 0 ? 1U : 0U);
    EXPECT_EQ(+forward.forwardLogicalChannelDependency, c.dependency);
    EXPECT_EQ(+forward.hasReplacementFor, c.replacement != 0 ? 1U : 0U);
    EXPECT_EQ(+forward.replacementFor, c.replacement);
    EXPECT_EQ(input.Next(), kMarker) << c.count;
  }
}

TEST(OpenLogicalChannelTest, BitmapOf256AdditionsCountsAsNone) {
  BitWriter w;
  w.Bits(0, 2).Align().Bits(6, 16).Bits(0b10, 2);
  NoParameters(NullData(w)).NormallySmall(255);
  Input input(Marked(w));
  Owned<OpenLogicalChannel> channel;
  DecodeH245(*channel, input.reader);
  EXPECT_EQ(+channel->forwardLogicalChannelParameters.hasForwardLogicalChannelDependency, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(H2250LogicalChannelParametersTest, NonStandardCountKeepsItsLow8Bits) {
  for (const uint32_t count : {1U, 256U, 257U}) {
    BitWriter w = H2250(kNonStandard | kAssociatedSessionID);
    w.Length(count);
    if (count != 256) w.Bit(true).Octets({0xB5, 0, 0, 9}).OpenType({1, 2});
    w.Align().Bits(200, 8).Bits(254, 8);
    Input input(Marked(w));
    Owned<H2250LogicalChannelParameters> m;
    DecodeH245(*m, input.reader);
    EXPECT_EQ(+m->nonStandardCount, count & 0xFF);
    EXPECT_EQ(+m->nonStandard == nullptr, count == 256);
    if (count != 256) {
      EXPECT_EQ(OctetsAt(m->nonStandard[0].data, m->nonStandard[0].dataLength), (Octets{1, 2}));
    }
    EXPECT_EQ(+m->sessionID, 200);
    EXPECT_EQ(+m->associatedSessionID, 255) << "1 to 255";
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(H2250LogicalChannelParametersTest, MediaPacketization) {
  constexpr struct {
    bool isExtension;
    uint32_t index;
    uint8_t kept;
  } kCases[] = {{false, 0, 0}, {true, 0, 0}, {true, 1, 0x42}, {true, 2, 0}, {true, 257, 0}};
  for (const auto& c : kCases) {
    BitWriter w = H2250(kMediaPacketization);
    w.Align().Bits(1, 8).Bit(c.isExtension);
    if (c.isExtension) w.NormallySmall(c.index).OpenType({0x42, 0x43, 0x44});
    Input input(Marked(w));
    Owned<H2250LogicalChannelParameters> m;
    DecodeH245(*m, input.reader);
    EXPECT_EQ(+m->mediaPacketization.isExtension, c.isExtension ? 1U : 0U);
    EXPECT_EQ(+m->mediaPacketization.choiceTag, c.index & 0xFF);
    EXPECT_EQ(+m->mediaPacketization.mediaPacketizationOctet, c.kept) << c.index;
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(H2250LogicalChannelParametersTest, TerminalLabelsAndAdditions) {
  BitWriter w = H2250(kDestination | kSilenceSuppression, true);
  w.Align().Bits(1, 8).Bit(true);
  w.Bit(true).Bits(192, 8).Bits(191, 8);
  Additions(w, 1, 1).OpenType({7});
  Additions(w, 0b00101, 5).OpenType(BitWriter().Bit(false).Bits(3, 8).Bits(4, 8)).OpenType({1, 2});
  Input input(Marked(w));
  Owned<H2250LogicalChannelParameters> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->silenceSuppression, 1U);
  EXPECT_EQ(+m->destination.mcuNumber, 192);
  EXPECT_EQ(+m->destination.terminalNumber, 191);
  EXPECT_EQ(+m->hasTransportCapability, 0U);
  EXPECT_EQ(+m->hasRedundancyEncoding, 0U);
  EXPECT_EQ(+m->source.mcuNumber, 3);
  EXPECT_EQ(+m->source.terminalNumber, 4);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(H2250LogicalChannelParametersTest, BitmapOf256AdditionsCountsAsNone) {
  BitWriter w = H2250(0, true).Align().Bits(1, 8).NormallySmall(255);
  Input input(Marked(w));
  Owned<H2250LogicalChannelParameters> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(input.Next(), kMarker);

  Input ack(Marked(BitWriter().Bits(0b100000, 6).NormallySmall(255)));
  Owned<H2250LogicalChannelAckParameters> acknowledged;
  DecodeH245(*acknowledged, ack.reader);
  EXPECT_EQ(ack.Next(), kMarker);
}

// RedundancyEncodingElement: nullData with a payload type.
BitWriter& Element(BitWriter& w, uint32_t payloadType) { return NullData(w.Bits(0b01, 2)).Bits(payloadType, 7); }

TEST(RedundancyEncodingTest, SecondaryCountIsOneOctet) {
  for (const uint32_t count : {0U, 3U, 130U}) {
    BitWriter rtp;
    rtp.Bits(0b011, 3);
    Element(rtp, 100).Align().Bits(count, 8);
    for (uint32_t i = 0; i < count; ++i) Element(rtp, i & 0x7F);
    BitWriter w;
    w.Bits(0b11, 2).Bits(1, 2);
    NullData(w);
    Additions(w, 0b11, 2).OpenType(rtp).OpenType({1});
    Input input(Marked(w));
    Owned<RedundancyEncoding> m;
    DecodeH245(*m, input.reader);
    EXPECT_EQ(+m->secondaryEncoding->choiceTag, 1);
    const auto& decoded = m->rtpRedundancyEncoding;
    EXPECT_EQ(+decoded.primary.payloadType, 100);
    EXPECT_EQ(+decoded.secondaryCount, count);
    EXPECT_EQ(+decoded.secondary == nullptr, count == 0);
    if (count > 0) {
      EXPECT_EQ(+decoded.secondary[count - 1].payloadType, (count - 1) & 0x7F);
    }
    EXPECT_EQ(input.Next(), kMarker);
  }
}

// DataTypes, each but the last a redundancyEncoding around the next one.
void NestedDataType(BitWriter& w, uint32_t levels) {
  if (levels == 1) {
    NullData(w);
    return;
  }
  BitWriter redundancy;
  redundancy.Bits(0b01, 2).Bits(1, 2);
  NestedDataType(redundancy, levels - 1);
  w.Bit(true).NormallySmall(3).OpenType(redundancy);
}

TEST(DataTypeTest, DepthIsBounded) {
  for (const uint32_t levels : {kMaximumDepth, kMaximumDepth + 1}) {
    BitWriter w;
    NestedDataType(w, levels);
    Input input(Marked(w));
    Owned<DataType> type;
    DecodeH245(*type, input.reader);
    uint32_t found = 1;
    const DataType* inner = &*type;
    while (inner->isExtension != 0 && +inner->redundancyEncoding.secondaryEncoding != nullptr) {
      inner = inner->redundancyEncoding.secondaryEncoding;
      ++found;
    }
    EXPECT_EQ(found, levels);
    EXPECT_EQ(+inner->choiceTag, levels > kMaximumDepth ? 0 : 1) << "beyond the bound nothing is read";
    EXPECT_EQ(input.reader.depth, 0U);
  }
}

TEST(DataTypeTest, UnknownAlternatives) {
  for (const uint32_t index : {6U, 256U, 257U}) {
    Input input(Marked(BitWriter().Bit(true).NormallySmall(index).OpenType({0xFF, 0xFF})));
    Owned<DataType> type;
    DecodeH245(*type, input.reader);
    EXPECT_EQ(+type->choiceTag, index & 0xFF);
    EXPECT_EQ(input.Next(), kMarker) << index;
  }
  Input input(BitWriter().Bits(6, 4).Bits(0b1010, 4));
  Owned<DataType> type;
  DecodeH245(*type, input.reader);
  EXPECT_EQ(PerReadBits(input.reader, 4), 0b1010U) << "an index beyond the root decodes nothing";
}

TEST(OpenLogicalChannelAckTest, ForwardAckParameters) {
  BitWriter ack;
  ack.Bit(false).Bit(true).Bits(0b01001, 5).Bits(254, 8).Bits(31, 5);
  Additions(ack, 0b111, 3).OpenType({0x80}).OpenType({0xC0, 0x01}).OpenType({1});
  BitWriter w;
  w.Bits(0b11, 2).Align().Bits(65534, 16);
  w.Bits(0b010, 3).Align().Bits(9, 16).Bits(5000, 16);
  Additions(w, 0b0101, 4).OpenType(ack).OpenType({1, 2, 3});
  Input input(Marked(w));
  Owned<OpenLogicalChannelAck> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->forwardLogicalChannelNumber, 65535);
  EXPECT_EQ(+m->reverseLogicalChannelParameters.reverseLogicalChannelNumber, 10);
  EXPECT_EQ(+m->reverseLogicalChannelParameters.portNumber, 5000);
  EXPECT_EQ(+m->hasSeparateStack, 0U);
  const auto& parameters = m->forwardMultiplexAckParameters.h2250LogicalChannelAckParameters;
  EXPECT_EQ(+parameters.sessionID, 255);
  EXPECT_EQ(+parameters.dynamicRTPPayloadType, 127);
  EXPECT_EQ(+parameters.flowControlToZero, 1U);
  EXPECT_EQ(+parameters.portNumber, 0xC001);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(OpenLogicalChannelAckTest, ReverseBitmapOf256AdditionsCountsAsNone) {
  BitWriter w;
  w.Bits(0b01, 2).Align().Bits(0, 16).Bits(0b100, 3).Align().Bits(9, 16).NormallySmall(255);
  Input input(Marked(w));
  Owned<OpenLogicalChannelAck> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->reverseLogicalChannelParameters.isExtended, 1U);
  EXPECT_EQ(+m->reverseLogicalChannelParameters.hasReplacementFor, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

}  // namespace
}  // namespace kelvra::h245
