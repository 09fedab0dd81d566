// Recursive types are followed to the maximum depth. Past it nothing is read, including what follows.
#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "kelvra/h225/common/generic_data.h"
#include "kelvra/h245/capabilities/video_capability.h"
#include "kelvra/h245/channels/data_type.h"
#include "kelvra/h245/common/generic_capability.h"
#include "kelvra/h245/messages/multiplex_entry.h"
#include "kelvra/h245/modes/mode_element_type.h"
#include "per/decoder.h"

namespace kelvra::test {
namespace {

// Writes a value of T with `levels` levels of nesting.
using Write = void (*)(BitWriter& w, uint32_t levels);

// `inner` is the nested value, or null; `isRead` reports whether the members of the innermost value were read.
template <class T>
void ExpectDepthIsBounded(Write write, const T* (*inner)(const T&), bool (*isRead)(const T&)) {
  for (const uint32_t levels : {kMaximumDepth, kMaximumDepth + 1}) {
    SCOPED_TRACE(levels);
    BitWriter w;
    write(w, levels);
    Input input(Marked(w));
    Owned<T> value;
    const Status status = Decode(*value, input.reader);
    uint32_t found = 1;
    const T* innermost = &*value;
    for (; inner(*innermost) != nullptr; ++found) innermost = inner(*innermost);
    EXPECT_EQ(found, levels);
    EXPECT_EQ(isRead(*innermost), levels == kMaximumDepth);
    EXPECT_EQ(input.reader.depth, 0U);
    if (levels == kMaximumDepth) {
      EXPECT_EQ(status, kDecoded);  // past ten open types the reader resumes elsewhere
    } else if (kReportsFailures<T>) {
      EXPECT_EQ(status, kMalformed);
    }
  }
}

TEST(DepthTest, OfEnumeratedParametersIsBounded) {
  ExpectDepthIsBounded<h225::EnumeratedParameter>(
      [](BitWriter& w, uint32_t levels) {
        for (uint32_t level = levels; level > 0; --level) {
          w.Bits(level > 1 ? 0b01 : 0b00, 2).Bits(0, 4).Align().Bits(level, 16);  // id: standard
          if (level > 1) w.Bits(10, 5).Align().Bits(1 - 1, 16);                   // content: compound
        }
      },
      [](const h225::EnumeratedParameter& m) -> const h225::EnumeratedParameter* {
        return m.hasContent != 0 ? +m.content.compound.elements : nullptr;
      },
      [](const h225::EnumeratedParameter& m) { return m.id.standard == 1; });
}

// With a one-element list `supersedes` after each value.
void WriteGenericParameter(BitWriter& w, uint32_t levels) {
  w.Bits(0b01, 2).Bits(0, 3).Bits(127, 7);  // standard
  if (levels == 1) {
    w.Bits(0, 4);  // logical
  } else {
    WriteGenericParameter(w.Bits(7, 4).Length(1), levels - 1);
  }
  w.Length(1).Bits(0, 3).Bits(1, 7);
}

TEST(DepthTest, OfGenericParametersIsBounded) {
  ExpectDepthIsBounded<h245::GenericParameter>(
      WriteGenericParameter,
      [](const h245::GenericParameter& m) -> const h245::GenericParameter* {
        return m.parameterValue.choiceTag == 7 ? +m.parameterValue.genericParameter.elements : nullptr;
      },
      [](const h245::GenericParameter& m) { return m.parameterIdentifier.standard == 127 && m.supersedesCount == 1; });
}

void WriteMultiplexElement(BitWriter& w, uint32_t levels) {
  if (levels == 1) {
    w.Bit(false).Align().Bits(7, 16);  // logicalChannelNumber
  } else {
    w.Bit(true).Bits(2 - 2, 8);  // subElementList of two
    WriteMultiplexElement(w, levels - 1);
    WriteMultiplexElement(w, 1);
  }
  w.Bit(true);  // untilClosingFlag
}

TEST(DepthTest, OfMultiplexElementsIsBounded) {
  ExpectDepthIsBounded<h245::MultiplexElement>(
      WriteMultiplexElement,
      [](const h245::MultiplexElement& m) -> const h245::MultiplexElement* {
        return m.type.choiceTag == 1 ? +m.type.subElementList.elements : nullptr;
      },
      [](const h245::MultiplexElement& m) { return m.type.logicalChannelNumber == 7 && m.repeatCount.choiceTag == 1; });
}

TEST(DepthTest, WhatFollowsATooDeepElementIsEmpty) {
  BitWriter w;
  WriteMultiplexElement(w, kMaximumDepth + 1);
  Input input(w.Octets(std::vector<uint8_t>(4000)));
  Owned<h245::MultiplexElement> element;
  static_cast<void>(Decode(*element, input.reader));
  EXPECT_EQ(+element->repeatCount.finite, 1) << "the least value";
  EXPECT_TRUE(PerAtEnd(input.reader));
}

constexpr uint32_t kMultiplePayloadStreamMode = 3;
constexpr uint32_t kFecMode = 4;
constexpr uint32_t kUnknown = 9;

// Nested extension alternatives; the innermost is unknown.
template <uint32_t kAlternative>
void WriteMode(BitWriter& w, uint32_t levels) {
  if (levels == 1) {
    w.Bit(true).NormallySmall(kUnknown).OpenType({});
    return;
  }
  BitWriter value;
  if (kAlternative == kFecMode) {
    value.Bits(0b00, 2).Bits(0b01, 2).Bits(0b01, 2).Bit(false);  // rfc2733Mode, separateStream, samePort
  } else {
    value.Bit(false).Length(1).Bit(false);  // one element
  }
  WriteMode<kAlternative>(value, levels - 1);
  w.Bit(true).NormallySmall(kAlternative).OpenType(value);
}

const h245::ModeElementType* InnerMode(const h245::ModeElementType& m) {
  if (m.isExtension == 0) return nullptr;
  if (m.choiceTag == kFecMode) return m.fecMode.rfc2733Mode.mode.separateStream.samePort.protectedType;
  const h245::MultiplePayloadStreamElementMode* element = m.multiplePayloadStreamMode.elements;
  return element != nullptr ? &element->type : nullptr;
}

TEST(DepthTest, OfModesIsBounded) {
  for (const Write write : {Write{WriteMode<kMultiplePayloadStreamMode>}, Write{WriteMode<kFecMode>}}) {
    ExpectDepthIsBounded<h245::ModeElementType>(write, InnerMode,
                                                [](const h245::ModeElementType& m) { return m.choiceTag == kUnknown; });
  }
}

void WriteVideoCapability(BitWriter& w, uint32_t levels) {
  if (levels == 1) {
    w.Bit(true).NormallySmall(kUnknown).OpenType({1, 2, 3});
    return;
  }
  BitWriter extended;
  extended.Bits(0b01, 2).Length(1);  // one videoCapability
  WriteVideoCapability(extended, levels - 1);
  w.Bit(true).NormallySmall(1).OpenType(extended.Length(0));  // no videoCapabilityExtension
}

TEST(DepthTest, OfVideoCapabilitiesIsBounded) {
  ExpectDepthIsBounded<h245::VideoCapability>(
      WriteVideoCapability,
      [](const h245::VideoCapability& m) -> const h245::VideoCapability* {
        const h245::ExtendedVideoCapability* extended =
            m.isExtension != 0 && m.choiceTag == 1 ? +m.extendedVideoCapability : nullptr;
        return extended != nullptr ? +extended->videoCapability : nullptr;
      },
      [](const h245::VideoCapability& m) { return m.choiceTag == kUnknown; });
}

void WriteDataType(BitWriter& w, uint32_t levels) {
  if (levels == 1) {
    w.Bits(1, 4);  // nullData
    return;
  }
  BitWriter redundancy;
  redundancy.Bits(0b01, 2).Bits(1, 2);  // secondaryEncoding
  WriteDataType(redundancy, levels - 1);
  w.Bit(true).NormallySmall(3).OpenType(redundancy);
}

TEST(DepthTest, OfDataTypesIsBounded) {
  ExpectDepthIsBounded<h245::DataType>(
      WriteDataType,
      [](const h245::DataType& m) -> const h245::DataType* {
        return m.isExtension != 0 ? +m.redundancyEncoding.secondaryEncoding : nullptr;
      },
      [](const h245::DataType& m) { return m.choiceTag == 1; });
}

}  // namespace
}  // namespace kelvra::test
