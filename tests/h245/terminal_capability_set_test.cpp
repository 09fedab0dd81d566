#include "kelvra/h245/capabilities/terminal_capability_set.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "kelvra/h245/capabilities/capability.h"
#include "kelvra/h245/capabilities/h2250_capability.h"
#include "kelvra/h245/capabilities/multiplex_capability.h"
#include "kelvra/h245/capabilities/stream_capability.h"
#include "kelvra/h245/capabilities/video_capability.h"
#include "per/decoder.h"

namespace kelvra::h245 {
namespace {

using test::BitWriter;
using test::DecodeH245;
using test::Input;
using test::kMarker;
using test::Marked;
using test::Owned;
using Octets = std::vector<uint8_t>;

// sequenceNumber 7, and a protocolIdentifier of three arcs. The presence bits are those of
// multiplexCapability, capabilityTable and capabilityDescriptors.
BitWriter Set(uint32_t present) { return BitWriter().Bit(false).Bits(present, 3).Align().Bits(7, 8).OpenType({0, 8}); }

// A list's count, of SIZE (1..256).
BitWriter& Count(BitWriter& w, uint32_t count) { return w.Align().Bits(count - 1, 8); }

BitWriter& EntryNumber(BitWriter& w, uint16_t number) { return w.Align().Bits(number - 1U, 16); }

TEST(AlternativeCapabilitySetTest, CountIsNotAligned) {
  for (const uint32_t offset : {0U, 3U, 7U}) {
    BitWriter w;
    w.Bits(0x7F, offset).Bits(1, 8);
    EntryNumber(EntryNumber(w, 65535), 0x0102);
    Input input(Marked(w));
    PerSkipBits(input.reader, offset);
    Owned<AlternativeCapabilitySet> m;
    DecodeH245(*m, input.reader);
    ASSERT_EQ(+m->entryCount, 2) << offset;
    EXPECT_EQ(+m->entries[0], 65535);
    EXPECT_EQ(+m->entries[1], 0x0102);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(AlternativeCapabilitySetTest, Holds256Entries) {
  BitWriter w;
  w.Bits(255, 8);
  for (uint16_t i = 1; i <= 256; ++i) EntryNumber(w, i);
  Input input(Marked(w));
  Owned<AlternativeCapabilitySet> m;
  DecodeH245(*m, input.reader);
  ASSERT_EQ(+m->entryCount, 256);
  EXPECT_EQ(+m->entries[255], 256);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(CapabilityTest, UnknownAlternativesAreSkippedWhole) {
  for (const uint32_t index : {14U, 63U, 256U}) {
    Input input(Marked(BitWriter().Bit(true).NormallySmall(index).OpenType(Octets(20, 0xFF))));
    Owned<Capability> capability;
    DecodeH245(*capability, input.reader);
    EXPECT_EQ(+capability->choiceTag, index & 0xFF);
    EXPECT_EQ(+capability->conferenceCapability.hasNonStandardData, 0U) << index;
    EXPECT_EQ(input.Next(), kMarker);
  }
  for (const uint32_t index : {2U, 256U, 257U}) {
    Input input(Marked(BitWriter().Bit(true).NormallySmall(index).OpenType(Octets(20, 0xFF))));
    Owned<MultiplexCapability> multiplex;
    DecodeH245(*multiplex, input.reader);
    EXPECT_EQ(+multiplex->h2250Capability.maximumAudioDelayJitter, 0) << index;
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(CapabilityTest, ImpossibleRootIndexReadsNothing) {
  for (uint32_t index = 12; index < 16; ++index) {
    Input input(BitWriter().Bits(index, 5).Bits(0b111, 3));
    Owned<Capability> capability;
    DecodeH245(*capability, input.reader);
    EXPECT_EQ(+capability->choiceTag, index);
    EXPECT_EQ(input.Bit(), 5U);
  }
}

TEST(H2250CapabilityTest, RfcNumberBeyondItsRange) {
  BitWriter capability;
  capability.Bit(false).Align().Bits(0, 16);
  for (int i = 0; i < 3; ++i) capability.Bits(0, 3).Length(0);  // no media distribution
  capability.Bits(0, 3).Bit(false);
  capability.Bits(0b10, 2);  // mediaPacketizationCapability, extended
  test::Additions(capability, 1, 1);
  BitWriter types;
  Count(types, 1).Bits(0, 2).Bits(1, 3).Bit(true).OpenType({0x01, 0x00, 0x00});
  capability.OpenType(types);
  BitWriter message;
  message.Bit(true).NormallySmall(0).OpenType(capability);
  Input input(Marked(message));
  Owned<MultiplexCapability> m;
  DecodeH245(*m, input.reader);
  const auto& packetization = m->h2250Capability.mediaPacketizationCapability;
  ASSERT_EQ(+packetization.rtpPayloadTypeCount, 1);
  EXPECT_EQ(+packetization.rtpPayloadType[0].payloadDescriptor.rfcNumber, 65536U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(H2250CapabilityTest, BitmapsOf256AdditionsCountAsNone) {
  BitWriter w;
  w.Bit(true).Align().Bits(0, 16);
  for (int i = 0; i < 3; ++i) w.Bits(0, 3).Length(0);  // no media distribution
  w.Bits(0, 3).Bit(false);
  w.Bits(0b10, 2).NormallySmall(255);  // mediaPacketizationCapability
  w.NormallySmall(255).Octets(Octets(40, 0xFF));
  Input input(w);
  Owned<H2250Capability> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->mediaPacketizationCapability.isExtended, 1U);
  EXPECT_EQ(+m->mediaPacketizationCapability.hasRtpPayloadType, 0U);
  EXPECT_EQ(+m->hasTransportCapability, 0U);
  EXPECT_EQ(PerOctetsLeft(input.reader), 40U);
}

TEST(TerminalCapabilitySetTest, TablesOf256Elements) {
  BitWriter w = Set(0b011);
  Count(w, 256);
  for (uint16_t i = 1; i <= 256; ++i) EntryNumber(w.Bit(i == 256), i);
  w.Bits(10, 5).Bit(true);  // h233EncryptionTransmitCapability in the last entry
  Count(w, 256);
  for (uint32_t i = 0; i < 256; ++i) w.Bit(false).Align().Bits(i, 8);
  Input input(Marked(w));
  Owned<TerminalCapabilitySet> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->sequenceNumber, 7);
  ASSERT_EQ(+m->capabilityTableCount, 256);
  EXPECT_EQ(+m->capabilityTable[255].capabilityTableEntryNumber, 256);
  EXPECT_EQ(+m->capabilityTable[254].hasCapability, 0U);
  EXPECT_EQ(+m->capabilityTable[255].capability.h233EncryptionTransmitCapability, 1U);
  ASSERT_EQ(+m->capabilityDescriptorCount, 256);
  EXPECT_EQ(+m->capabilityDescriptors[255].capabilityDescriptorNumber, 255);
  EXPECT_EQ(input.Next(), kMarker);
}

// Each list in turn finds the allowance of the message used up but for what comes before it.
TEST(TerminalCapabilitySetTest, RefusedListKeepsItsCountAndEndsTheDecode) {
  BitWriter w = Set(0b011);
  EntryNumber(Count(w, 2).Bit(false), 1);
  EntryNumber(w.Bit(false), 2);
  Count(w, 1).Bit(true).Align().Bits(9, 8);
  EntryNumber(EntryNumber(Count(w, 1).Bits(1, 8), 1), 2);

  constexpr uint32_t kArcs = 3 * sizeof(uint32_t);
  constexpr uint32_t kTable = 2 * sizeof(CapabilityTableEntry);
  constexpr struct {
    uint32_t allowance;
    bool table, descriptors, sets, entries;
  } kCases[] = {
      {kArcs, false, false, false, false},
      {kArcs + kTable, true, false, false, false},
      {kArcs + kTable + sizeof(CapabilityDescriptor), true, true, false, false},
      {kArcs + kTable + sizeof(CapabilityDescriptor) + sizeof(AlternativeCapabilitySet), true, true, true, false},
      {kArcs + 2 * kTable, true, true, true, true}};
  for (const auto& c : kCases) {
    Input input(Marked(w));
    input.reader.allowance = c.allowance;
    Owned<TerminalCapabilitySet> m;
    DecodeH245(*m, input.reader);
    EXPECT_EQ(+m->capabilityTableCount, 2);
    ASSERT_EQ(m->capabilityTable != nullptr, c.table) << c.allowance;
    EXPECT_EQ(+m->capabilityDescriptorCount, c.table ? 1 : 0);
    ASSERT_EQ(m->capabilityDescriptors != nullptr, c.descriptors) << c.allowance;
    if (c.descriptors) {
      const CapabilityDescriptor& descriptor = m->capabilityDescriptors[0];
      EXPECT_EQ(+descriptor.capabilityDescriptorNumber, 9);
      EXPECT_EQ(+descriptor.simultaneousCapabilitiesCount, 1);
      ASSERT_EQ(descriptor.simultaneousCapabilities != nullptr, c.sets) << c.allowance;
      if (c.sets) {
        EXPECT_EQ(+descriptor.simultaneousCapabilities[0].entryCount, 2);
        EXPECT_EQ(descriptor.simultaneousCapabilities[0].entries != nullptr, c.entries) << c.allowance;
      }
    }
    if (c.entries) {
      EXPECT_EQ(input.Next(), kMarker);
    } else {
      EXPECT_TRUE(PerAtEnd(input.reader)) << c.allowance;
    }
  }
}

// VideoCapabilities, each but the last an extendedVideoCapability of the next one.
void NestedVideo(BitWriter& w, uint32_t levels) {
  if (levels == 1) {
    w.Bit(true).NormallySmall(9).OpenType({1, 2, 3});
    return;
  }
  BitWriter extended;
  extended.Bits(0b01, 2).Length(1);  // one videoCapability
  NestedVideo(extended, levels - 1);
  extended.Length(0);  // no videoCapabilityExtension
  w.Bit(true).NormallySmall(1).OpenType(extended);
}

TEST(VideoCapabilityTest, DepthIsBounded) {
  for (const uint32_t levels : {kMaximumDepth, kMaximumDepth + 1}) {
    BitWriter w;
    NestedVideo(w, levels);
    Input input(Marked(w));
    Owned<VideoCapability> capability;
    DecodeH245(*capability, input.reader);
    const VideoCapability* inner = &*capability;
    for (uint32_t i = 1; i < levels; ++i) {
      ASSERT_NE(+inner->extendedVideoCapability, nullptr) << i;
      EXPECT_EQ(+inner->extendedVideoCapability->videoCapabilityExtensionCount, 0) << "also after one too deep";
      inner = inner->extendedVideoCapability->videoCapability;
      ASSERT_NE(inner, nullptr) << i;
    }
    EXPECT_EQ(+inner->choiceTag, levels > kMaximumDepth ? 0 : 9) << "beyond the bound nothing is read";
    EXPECT_EQ(input.reader.depth, 0U);
  }
}

}  // namespace
}  // namespace kelvra::h245
