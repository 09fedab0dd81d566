// The bounds of the recursive types of modes and of the multiplex table.
#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "h245/messages/multiplex_entry_decode.h"
#include "h245/modes/mode_element_type_decode.h"
#include "h245/modes/request_mode_decode.h"

namespace kelvra::h245 {
namespace {

using test::BitWriter;
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

TEST(MultiplexEntrySendTest, ElementsNestToTheMaximumDepth) {
  for (const uint32_t levels : {kMaximumDepth, kMaximumDepth + 1}) {
    BitWriter w;
    w.Bit(false).Align().Bits(9, 8).Bits(1 - 1, 4);     // sequenceNumber, one descriptor
    w.Bit(true).Bits(3 - 1, 4).Align().Bits(1 - 1, 8);  // its number, one element
    NestedElement(w, levels);
    Input input(Marked(w));
    Owned<MultiplexEntrySend> send;
    DecodeMultiplexEntrySend(*send, input.reader);
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

// ModeElementTypes, each but the last one an extension alternative that holds the next.
void NestedType(BitWriter& w, uint32_t alternative, uint32_t levels) {
  if (levels == 1) {
    w.Bits(0b0'100, 4).Bits(0b01, 2);  // encryptionMode: h233Encryption
    return;
  }
  BitWriter value;
  if (alternative == kFecMode) {
    value.Bits(0b00, 2).Bits(0b01, 2).Bits(0b01, 2).Bit(false);  // rfc2733Mode, separateStream, samePort
  } else {
    value.Bit(false).Length(1).Bit(false);  // one element
  }
  NestedType(value, alternative, levels - 1);
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
      DecodeModeElementType(*type, input.reader);
      uint32_t found = 1;
      const ModeElementType* innermost = &*type;
      for (; Inner(*innermost) != nullptr; ++found) innermost = Inner(*innermost);
      EXPECT_EQ(found, levels) << alternative;
      EXPECT_EQ(+innermost->choiceTag, levels > kMaximumDepth ? 0 : 4) << "beyond the bound nothing is read";
      EXPECT_EQ(input.reader.depth, 0U);
    }
  }
}

// A message whose blocks have reached the allowance gets no more.
TEST(ModeElementTypeTest, ARefusedBlockIsMissing) {
  BitWriter type;
  NestedType(type, kFecMode, 2);
  Input fec(Marked(type));
  fec.reader.allowance = 0;
  Owned<ModeElementType> record;
  DecodeModeElementType(*record, fec.reader);
  EXPECT_EQ(Inner(*record), nullptr);

  Input request(BitWriter().Bit(false).Align().Bits(9, 8).Bits(2 - 1, 8).Octets(std::vector<uint8_t>(64)));
  request.reader.allowance = sizeof(ModeDescription) * 2;
  Owned<RequestMode> mode;
  DecodeRequestMode(*mode, request.reader);
  ASSERT_NE(+mode->requestedModes, nullptr);
  EXPECT_EQ(+mode->requestedModes[0].elements, nullptr);
  EXPECT_EQ(+mode->requestedModes[1].count, 0) << "the reader is at its end";
}

}  // namespace
}  // namespace kelvra::h245
