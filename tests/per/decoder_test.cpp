#include "per/decoder.h"

#include <gtest/gtest.h>

#include "per/bit_writer.h"
#include "per/input.h"

namespace kelvra::test {
namespace {

struct Choice {
  uint8_t choiceTag = 0xEE;
  uint32_t isExtension = 0xEE;
};

uint32_t ReadHeader(Choice& choice, PerReader& reader, uint32_t roots) {
  bool isExtension = false;
  const asn1::ChoiceIndex places{asn1::Scalar<uint8_t>(&choice.choiceTag), asn1::Flag(&choice.isExtension), true,
                                 roots};
  const uint32_t index = ReadChoiceHeader(reader, places, isExtension);
  EXPECT_EQ(isExtension, choice.isExtension != 0);
  return index;
}

// An extension bit, then the index: from every offset, also if the message ends inside them.
TEST(ReadChoiceHeader, IsAnExtensionBitAndAnIndex) {
  for (uint32_t first = 0; first < 256; ++first) {
    for (size_t size = 1; size <= 3; ++size) {
      for (const uint32_t roots : {1U, 2U, 3U, 8U, 15U, 25U, 255U}) {
        for (uint32_t offset = 0; offset < 8; ++offset) {
          SCOPED_TRACE(testing::Message()
                       << first << ", " << size << " octets, " << roots << " roots, from " << offset);
          std::vector<uint8_t> octets = {static_cast<uint8_t>(first), 0xA6, 0x91};
          octets.resize(size);
          Input header(octets);
          Input parts(octets);
          PerSkipBits(header.reader, offset);
          PerSkipBits(parts.reader, offset);
          Choice choice;
          const uint32_t index = ReadHeader(choice, header.reader, roots);
          const uint32_t extension = PerReadBit(parts.reader);
          ASSERT_EQ(choice.isExtension, extension);
          ASSERT_EQ(index, extension != 0 ? PerReadNormallySmall(parts.reader)
                                          : PerReadConstrainedWholeNumber(parts.reader, roots));
          ASSERT_EQ(choice.choiceTag, static_cast<uint8_t>(index));
          ASSERT_EQ(header.Bit(), parts.Bit());
        }
      }
    }
  }
}

struct Names {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"first", "second", "third", "fourth", "fifth"};
};

// Decodes the extension alternative `index` of a CHOICE that knows three; reports whether its open type was entered.
template <class NullChoice, class Decode>
bool Enters(uint32_t index, Decode decode) {
  Input input(BitWriter().Bit(true).NormallySmall(index).OpenType({1, 2}).Octets({0x5A}));
  NullChoice m{};
  decode(m, input.reader);
  EXPECT_EQ(+m.isExtension, 1U);
  EXPECT_EQ(+m.choiceTag, index);
  EXPECT_EQ(input.Next(), 0x5AU);
  return input.reader.openTypes.lengths[1] == 2;
}

TEST(DecodeNullChoice, EntersTheOpenTypeOfAnAlternativeThatIsKnown) {
  for (const uint32_t index : {0U, 2U, 3U, 70U}) {
    SCOPED_TRACE(index);
    const auto decode = [](auto& m, PerReader& r) { EXPECT_EQ(DecodeByHand(m, r), kDecoded); };
    EXPECT_EQ(Enters<NullChoice<Names>>(index, decode), index < 3);
    EXPECT_EQ(Enters<h245::NullChoice<Names>>(index, decode), index < 3);
  }
}

}  // namespace
}  // namespace kelvra::test
