// The calls of the diagnostic hook. The line matters only if it is a distinct number.
#include <gtest/gtest.h>

#include "faults/heap_double.h"
#include "faults/message_corpus.h"
#include "h225/call/q931_frame.h"
#include "per/primitives.h"

namespace kelvra::test {
namespace {

class TraceTest : public testing::Test {
 protected:
  void SetUp() override { heap_.Reset(); }

  // The trace while `read` uses a reader over these octets.
  template <class Read>
  std::vector<TraceCall> TracesOf(const std::vector<uint8_t>& octets, Read read) {
    PerReader reader;
    PerReaderInit(reader, octets.data(), static_cast<uint32_t>(octets.size()));
    read(reader);
    std::vector<TraceCall> traces = heap_.Traces();
    heap_.DropLiveBlocks();
    heap_.Reset();
    return traces;
  }

  // The trace of a decode, without lines.
  std::vector<TraceCall> TracesOf(Family family, const std::vector<uint8_t>& octets) {
    DecodedMessage message(family, octets);
    message.Release();
    std::vector<TraceCall> traces = heap_.Traces();
    for (TraceCall& trace : traces) trace.line = 0;
    heap_.Reset();
    return traces;
  }

  HeapDouble& heap_ = HeapDouble::Instance();
};

using Traces = std::vector<TraceCall>;

TEST_F(TraceTest, TheReaderDistinguishesItsRefusals) {
  const std::vector<uint8_t> octets = {0xC1, 0x01, 0x02, 0x03, 0x04, 0x05};
  EXPECT_EQ(TracesOf(octets, [](PerReader& r) { PerReadBits(r, 49); }), (Traces{{64, 4, 512, 31, 127}}));
  EXPECT_EQ(TracesOf(octets, [](PerReader& r) { PerReadBits(r, 33); }), (Traces{{64, 4, 512, 31, 134}}));
  EXPECT_EQ(TracesOf(octets, [](PerReader& r) { PerSkipBits(r, 56); }), (Traces{{64, 4, 512, 31, 101}}));
  EXPECT_EQ(TracesOf({}, [](PerReader& r) { PerSkipBits(r, 1); }), (Traces{{64, 4, 512, 31, 85}}));
  EXPECT_EQ(TracesOf(octets, [](PerReader& r) { PerReadLength(r); }), (Traces{{64, 4, 512, 41, 275}}));
  EXPECT_EQ(TracesOf({0xC1}, [](PerReader& r) { PerReadLength(r); }), (Traces{{64, 4, 512, 41, 275}}));
  EXPECT_EQ(TracesOf(octets,
                     [this](PerReader& r) {
                       heap_.RefuseOnly(1);
                       PerReadOctets(r, 1);
                     }),
            (Traces{{64, 4, 2, 40, 192}}));
}

TEST_F(TraceTest, WhatFailsOtherwiseIsNotTraced) {
  EXPECT_EQ(TracesOf({}, [](PerReader& r) { PerReadBits(r, 1); }), Traces{});
  EXPECT_EQ(TracesOf({0x05}, [](PerReader& r) { PerReadInteger(r); }), Traces{});
  EXPECT_EQ(TracesOf({0x01}, [](PerReader& r) { PerReadOctets(r, 2); }), Traces{});
  // Aligning moves the reader to its end.
  EXPECT_EQ(TracesOf({0x01},
                     [](PerReader& r) {
                       PerReadBit(r);
                       PerReadOctets(r, 1);
                     }),
            Traces{});
  EXPECT_EQ(TracesOf({0x01},
                     [](PerReader& r) {
                       PerReadBit(r);
                       PerReadBitString(r, 24);
                     }),
            Traces{});
}

TEST_F(TraceTest, Q931FrameReportsItsEntryAndMissingParts) {
  const TraceCall entry{2, 1, 32768, 38, 0};
  EXPECT_EQ(TracesOf(Family::kQ931, {}), (Traces{entry, {2, 4, 32, 38, 0}}));
  EXPECT_EQ(TracesOf(Family::kQ931, {3, 0, 0, 9, 8, 2, 0, 0, 5}), (Traces{entry, {2, 4, 64, 38, 0}}));
  const std::vector<uint8_t> emptyElement = {3, 0, 0, 13, 8, 2, 0, 0, 5, 0x7E, 0, 1, 5};
  EXPECT_EQ(TracesOf(Family::kQ931, emptyElement), (Traces{entry, {2, 4, 512, 38, 0}}));
}

TEST_F(TraceTest, AnUnknownAlternativeIsToldWhenItIsReleased) {
  const TraceCall unknown{64, 4, 4, 36, 0};
  EXPECT_EQ(TracesOf(Family::kRas, {0x89, 2, 0xAA, 0xBB, 0}), Traces{unknown});
  // An index outside the root: the decode releases what it refuses, and the caller releases it again.
  EXPECT_EQ(TracesOf(Family::kRas, {0x7C, 0}), (Traces{unknown, unknown}));
}

TEST_F(TraceTest, ASearchWithoutArgumentsIsTold) {
  h225::Q931Element element{};
  h225::FindQ931Element(nullptr, 0x7E, &element);
  ASSERT_EQ(heap_.Traces().size(), 1U);
  TraceCall trace = heap_.Traces()[0];
  trace.line = 0;
  EXPECT_EQ(trace, (TraceCall{2, 4, 32, 38, 0}));
}

}  // namespace
}  // namespace kelvra::test
