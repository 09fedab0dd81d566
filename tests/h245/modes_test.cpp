// The bounds of the recursive types of modes and of the multiplex table.
#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "kelvra/h245/messages/multiplex_entry.h"
#include "kelvra/h245/modes/mode_element_type.h"
#include "kelvra/h245/modes/request_mode.h"
#include "per/decoder.h"

namespace kelvra::h245 {
namespace {

using test::BitWriter;
using test::DecodeH245;
using test::Input;
using test::kMarker;
using test::Marked;
using test::Owned;

// A MultiplexElement, the first sub-element of which nests `levels` - 1 deep.
void NestedElement(BitWriter& w, uint32_t levels) {
  if (levels == 1) {
    w.Bit(false).Align().Bits(7, 16);  // logicalChannelNumber
  } else {
    w.Bit(true).Bits(2 - 2, 8);  // subElementList of two
    NestedElement(w, levels - 1);
    NestedElement(w, 1);
  }
  w.Bit(true);  // untilClosingFlag
}

// Of an element that nests `levels` deep, the one `levels` - 1 levels down.
const MultiplexElement& ElementOf(const MultiplexElement& element, uint32_t levels) {
  return levels == 1 ? element : ElementOf(element.type.subElementList.elements[0], levels - 1);
}

TEST(MultiplexEntrySendTest, WhatFollowsATooDeepElementIsEmpty) {
  BitWriter w;
  w.Bit(false).Align().Bits(9, 8).Bits(1 - 1, 4);
  w.Bit(true).Bits(3 - 1, 4).Align().Bits(1 - 1, 8);
  NestedElement(w, kMaximumDepth + 1);
  Input input(w);
  Owned<MultiplexEntrySend> send;
  DecodeH245(*send, input.reader);
  const MultiplexElement& around = ElementOf(*send->multiplexEntryDescriptors->elementList, kMaximumDepth);
  EXPECT_EQ(+around.repeatCount.choiceTag, 0);
  EXPECT_EQ(+around.repeatCount.finite, 1) << "the least value";
}

TEST(MultiplexEntrySendTest, ElementsNestToTheMaximumDepth) {
  for (const uint32_t levels : {kMaximumDepth, kMaximumDepth + 1}) {
    BitWriter w;
    w.Bit(false).Align().Bits(9, 8).Bits(1 - 1, 4);     // sequenceNumber, one descriptor
    w.Bit(true).Bits(3 - 1, 4).Align().Bits(1 - 1, 8);  // its number, one element
    NestedElement(w, levels);
    Input input(Marked(w));
    Owned<MultiplexEntrySend> send;
    DecodeH245(*send, input.reader);
    const MultiplexElement* element = send->multiplexEntryDescriptors->elementList;
    uint32_t found = 1;
    for (; element->type.choiceTag == 1; ++found) element = element->type.subElementList.elements;
    EXPECT_EQ(found, levels);
    EXPECT_EQ(+element->type.logicalChannelNumber, levels > kMaximumDepth ? 0 : 7);
    if (levels > kMaximumDepth) {
      EXPECT_TRUE(PerAtEnd(input.reader));
    } else {
      EXPECT_EQ(input.Next(), kMarker);
    }
  }
}

constexpr uint32_t kMultiplePayloadStreamMode = 3;
constexpr uint32_t kFecMode = 4;
constexpr uint32_t kUnknownMode = 9;

// ModeElementTypes, each but the last one an extension alternative that holds the next; the last is unknown.
void NestedType(BitWriter& w, uint32_t alternative, uint32_t levels) {
  if (levels == 1) {
    w.Bit(true).NormallySmall(kUnknownMode).OpenType({});
    return;
  }
  BitWriter value;
  if (alternative == kFecMode) {
    value.Bits(0b00, 2).Bits(0b01, 2).Bits(0b01, 2).Bit(false);  // rfc2733Mode, separateStream, samePort
  } else {
    value.Bit(false).Length(2).Bit(false);  // two elements, alike
  }
  NestedType(value, alternative, levels - 1);
  if (alternative == kMultiplePayloadStreamMode) NestedType(value.Bit(false), alternative, 1);
  w.Bit(true).NormallySmall(alternative).OpenType(value);
}

const ModeElementType* Inner(const ModeElementType& type) {
  if (type.isExtension == 0) return nullptr;
  if (type.choiceTag == kFecMode) return type.fecMode.rfc2733Mode.mode.separateStream.samePort.protectedType;
  const MultiplePayloadStreamElementMode* element = type.multiplePayloadStreamMode.elements;
  return element != nullptr ? &element->type : nullptr;
}

TEST(ModeElementTypeTest, NestsToTheMaximumDepth) {
  for (const uint32_t alternative : {kMultiplePayloadStreamMode, kFecMode}) {
    for (const uint32_t levels : {kMaximumDepth, kMaximumDepth + 1}) {
      BitWriter w;
      NestedType(w, alternative, levels);
      Input input(Marked(w));
      Owned<ModeElementType> type;
      DecodeH245(*type, input.reader);
      uint32_t found = 1;
      const ModeElementType* innermost = &*type;
      for (; Inner(*innermost) != nullptr; ++found) innermost = Inner(*innermost);
      EXPECT_EQ(found, levels) << alternative;
      EXPECT_EQ(+innermost->choiceTag, levels > kMaximumDepth ? 0 : kUnknownMode) << "beyond the bound nothing is read";
      EXPECT_EQ(input.reader.depth, 0U);
    }
  }
}

TEST(ModeElementTypeTest, WhatFollowsATooDeepTypeIsEmpty) {
  BitWriter w;
  NestedType(w, kMultiplePayloadStreamMode, kMaximumDepth + 1);
  Input input(w);
  Owned<ModeElementType> type;
  DecodeH245(*type, input.reader);
  const ModeElementType* around = &*type;
  for (uint32_t level = 1; level < kMaximumDepth; ++level) around = Inner(*around);
  EXPECT_EQ(+around->multiplePayloadStreamMode.elementsCount, 2);
  EXPECT_EQ(+around->multiplePayloadStreamMode.elements[1].isExtended, 0U);
}

// A message whose blocks have reached the allowance gets no more.
TEST(ModeElementTypeTest, ARefusedBlockIsMissing) {
  BitWriter type;
  NestedType(type, kFecMode, 2);
  Input fec(Marked(type));
  fec.reader.allowance = 0;
  Owned<ModeElementType> record;
  DecodeH245(*record, fec.reader);
  EXPECT_EQ(Inner(*record), nullptr);

  Input request(BitWriter().Bit(false).Align().Bits(9, 8).Bits(2 - 1, 8).Octets(std::vector<uint8_t>(64)));
  request.reader.allowance = sizeof(ModeDescription) * 2;
  Owned<RequestMode> mode;
  DecodeH245(*mode, request.reader);
  ASSERT_NE(+mode->requestedModes, nullptr);
  EXPECT_EQ(+mode->requestedModes[0].elements, nullptr);
  EXPECT_EQ(+mode->requestedModes[1].count, 0) << "the reader is at its end";
}

}  // namespace
}  // namespace kelvra::h245
