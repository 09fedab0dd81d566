#include "kelvra/h225/common/generic_data.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "per/decoder.h"

namespace kelvra::h225 {
namespace {

using test::Additions;
using test::BitWriter;
using test::Input;
using test::kMarker;
using test::Marked;
using test::OctetsOf;
using test::Owned;
using test::Rising;
using Octets = std::vector<uint8_t>;

// GenericIdentifier: standard, in its constrained form.
BitWriter& Standard(BitWriter& w, uint32_t value) { return w.Bits(0, 3).Bit(false).Align().Bits(value, 16); }

BitWriter ContentOf(uint32_t index) { return BitWriter().Bits(index, 5); }

TEST(GenericIdentifierTest, StandardHasAConstrainedAndAnUnboundedForm) {
  {
    BitWriter w;
    Standard(w, 16383);
    Input input(Marked(w));
    Owned<GenericIdentifier> id;
    ASSERT_EQ(Decode(*id, input.reader), kDecoded);
    EXPECT_EQ(+id->standard, 16383U);
    EXPECT_EQ(input.Next(), kMarker);
  }
  Input input(Marked(BitWriter().Bits(0, 3).Bit(true).OpenType({0x01, 0x00, 0x00})));
  Owned<GenericIdentifier> id;
  ASSERT_EQ(Decode(*id, input.reader), kDecoded);
  EXPECT_EQ(+id->standard, 0x10000U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(GenericIdentifierTest, TheUnboundedFormHasASign) {
  Input input(Marked(BitWriter().Bits(0, 3).Bit(true).OpenType({0x80})));
  Owned<GenericIdentifier> id;
  ASSERT_EQ(Decode(*id, input.reader), kDecoded);
  EXPECT_EQ(+id->standard, 0xFFFFFF80U);
}

TEST(GenericIdentifierTest, IndicesBeyondTheRoot) {
  Input unknown(Marked(BitWriter().Bit(true).NormallySmall(7).OpenType({1, 2})));
  Owned<GenericIdentifier> skipped;
  ASSERT_EQ(Decode(*skipped, unknown.reader), kDecoded);
  EXPECT_EQ(+skipped->choiceTag, 7);
  EXPECT_EQ(+skipped->isExtension, 1U);
  EXPECT_EQ(unknown.Next(), kMarker);
  Input malformed(BitWriter().Bits(3, 3).Octets(Rising(1, 16)));
  Owned<GenericIdentifier> id;
  EXPECT_EQ(Decode(*id, malformed.reader), kMalformed);
}

TEST(ContentTest, IndicesBeyondTheRoot) {
  for (uint32_t index = 12; index < 16; ++index) {
    Input input(ContentOf(index).Octets(Rising(1, 8)));
    Owned<Content> content;
    EXPECT_EQ(Decode(*content, input.reader), kMalformed);
  }
  Input input(Marked(BitWriter().Bit(true).NormallySmall(256).OpenType({9})));
  Owned<Content> content;
  ASSERT_EQ(Decode(*content, input.reader), kDecoded);
  EXPECT_EQ(+content->isExtension, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(ContentTest, CompoundHasA16BitCount) {
  for (const uint32_t count : {1U, 300U, 512U}) {
    BitWriter w = ContentOf(10);
    w.Align().Bits(count - 1, 16);
    for (uint32_t i = 0; i < count; ++i) {
      w.Bits(0, 2);
      Standard(w, i);
    }
    Input input(Marked(w));
    Owned<Content> content;
    ASSERT_EQ(Decode(*content, input.reader), kDecoded);
    ASSERT_EQ(+content->compound.count, count);
    EXPECT_EQ(+content->compound.elements[count - 1].id.standard, count - 1);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(ContentTest, NestedHas4BitsOfCount) {
  BitWriter w = ContentOf(11);
  w.Bits(15, 4);
  for (uint32_t i = 0; i < 16; ++i) {
    w.Bits(0, 2);
    Standard(w, i);
  }
  Input input(Marked(w));
  Owned<Content> content;
  ASSERT_EQ(Decode(*content, input.reader), kDecoded);
  ASSERT_EQ(+content->nested.count, 16);
  EXPECT_EQ(+content->nested.elements[15].id.standard, 15U);
  EXPECT_EQ(input.Next(), kMarker);
}

// `levels` EnumeratedParameters, each the only content of the one around it.
BitWriter NestedParameters(uint32_t levels) {
  BitWriter w;
  for (uint32_t i = levels; i > 0; --i) {
    w.Bits(i > 1 ? 0b01 : 0b00, 2);
    Standard(w, i);
    if (i > 1) w.Bits(10, 5).Align().Bits(0, 16);
  }
  return w;
}

TEST(EnumeratedParameterTest, DepthIsBounded) {
  {
    Input input(Marked(NestedParameters(kMaximumDepth)));
    Owned<EnumeratedParameter> parameter;
    ASSERT_EQ(Decode(*parameter, input.reader), kDecoded);
    const EnumeratedParameter* innermost = &*parameter;
    while (innermost->hasContent != 0) innermost = innermost->content.compound.elements;
    EXPECT_EQ(+innermost->id.standard, 1U);
    EXPECT_EQ(input.Next(), kMarker);
    EXPECT_EQ(input.reader.depth, 0U);
  }
  Input input(NestedParameters(kMaximumDepth + 1));
  Owned<EnumeratedParameter> parameter;
  EXPECT_EQ(Decode(*parameter, input.reader), kMalformed);
  EXPECT_EQ(input.reader.depth, 0U);
}

TEST(GenericDataTest, ParametersAndAdditions) {
  BitWriter w;
  w.Bits(0b11, 2);
  Standard(w, 7).Align().Bits(1, 16);
  w.Bits(0b11, 2);
  Standard(w, 8).Bits(0, 5).OpenType({1, 2, 3});
  Additions(w, 1, 1).OpenType({9});
  w.Bits(0b00, 2);
  Standard(w, 9);
  Additions(w, 1, 2).OpenType({9, 9});
  Input input(Marked(w));
  Owned<GenericData> data;
  ASSERT_EQ(Decode(*data, input.reader), kDecoded);
  ASSERT_EQ(+data->parametersCount, 2);
  EXPECT_EQ(OctetsOf(data->parameters[0].content.raw), (Octets{1, 2, 3}));
  EXPECT_EQ(+data->parameters[1].id.standard, 9U);
  EXPECT_EQ(+data->parameters[1].hasContent, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(GenericDataTest, ListCutShortStopsAtTheFirstMissingElement) {
  BitWriter w;
  w.Bits(0b01, 2);
  Standard(w, 7).Align().Bits(2, 16).Bits(0, 2);
  Standard(w, 8);
  Input input(w);
  Owned<GenericData> data;
  EXPECT_EQ(Decode(*data, input.reader), kExhausted);
  EXPECT_EQ(+data->parametersCount, 3) << "kept for the release";
  EXPECT_EQ(+data->parameters[0].id.standard, 8U);
}

TEST(FeatureSetTest, ListsKeepTheirLow8Bits) {
  BitWriter w;
  w.Bits(0b0011, 4).Bit(true).Length(257).Bits(0, 2);
  Standard(w, 1).Length(256);
  Input input(Marked(w));
  Owned<FeatureSet> set;
  // Wire order of the presence bits: needed, desired, supported.
  ASSERT_EQ(Decode(*set, input.reader), kDecoded);
  EXPECT_EQ(+set->replacementFeatureSet, 1U);
  EXPECT_EQ(+set->hasNeededFeatures, 0U);
  EXPECT_EQ(+set->desiredFeaturesCount, 1);
  EXPECT_EQ(+set->hasSupportedFeatures, 1U);
  EXPECT_EQ(+set->supportedFeaturesCount, 0);
  EXPECT_TRUE(+set->supportedFeatures == nullptr);
  EXPECT_EQ(input.Next(), kMarker);
}

}  // namespace
}  // namespace kelvra::h225
