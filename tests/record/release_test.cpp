#include "record/release.h"

#include <gtest/gtest.h>

#include "kelvra/begin_descriptions.h"

namespace kelvra {
namespace {

#pragma pack(push, 1)

struct Leaf {
  uint8_t number;
  OctetStringValue octets;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(number, Integer(0, 255));
    KELVRA_MEMBER(octets, OctetString());
  KELVRA_END
};

struct Unknown {
  template <class Record, class Visitor>
  static void Walk(Record&, Visitor& v) {
    v.UnknownExtension(9);
    v.UnknownRoot(9);
  }
};

struct Tree {
  uint32_t isPresent;
  OctetStringValue octets;
  BMPStringValue characters;
  ObjectIdentifierValue identifier;
  uint8_t leavesCount;
  Leaf* leaves;
  Leaf* one;
  uint8_t stringsCount;
  OctetStringValue* strings;
  uint8_t fixedStringsCount;
  OctetStringValue* fixedStrings;
  uint8_t identifiersCount;
  ObjectIdentifierValue* identifiers;
  uint8_t numbersCount;
  uint16_t* numbers;
  Leaf embedded;
  Unknown unknown;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(isPresent, octets, OctetString());
    KELVRA_MEMBER(characters, BMPString());
    KELVRA_MEMBER(identifier, ObjectIdentifier());
    KELVRA_MEMBER_LIST(leaves, SequenceOf(DefinedType()));
    KELVRA_MEMBER(one, IndirectType());
    KELVRA_MEMBER_LIST(strings, SequenceOf(OctetString()));
    KELVRA_MEMBER_LIST(fixedStrings, SequenceOf(UncountedOctetString(4)));
    KELVRA_MEMBER_LIST(identifiers, SequenceOf(ObjectIdentifier()));
    KELVRA_MEMBER_LIST(numbers, SequenceOf(Integer(0, 65535)));
    KELVRA_MEMBER(embedded, DefinedType());
    KELVRA_MEMBER(unknown, DefinedType());
  KELVRA_END
};

#pragma pack(pop)

template <class Element>
Element* Block(uint32_t count = 1) {
  return static_cast<Element*>(CodecAlloc(count * sizeof(Element)));
}

void Release(Tree& tree) {
  ReleaseVisitor visitor("test");
  Tree::Walk(tree, visitor);
}

Tree FullTree() {
  Tree tree{};
  tree.isPresent = 1;
  tree.octets = {3, Block<uint8_t>(3)};
  tree.characters = {2, Block<uint16_t>(2)};
  tree.identifier = {4, Block<uint32_t>(4)};
  tree.leavesCount = 3;
  tree.leaves = Block<Leaf>(3);
  tree.leaves[0] = {11, {5, Block<uint8_t>(5)}};
  tree.leaves[2] = {13, {6, Block<uint8_t>(6)}};
  tree.one = Block<Leaf>();
  tree.one[0] = {14, {7, Block<uint8_t>(7)}};
  tree.stringsCount = 2;
  tree.strings = Block<OctetStringValue>(2);
  tree.strings[1] = {1, Block<uint8_t>()};
  tree.fixedStringsCount = 2;
  tree.fixedStrings = Block<OctetStringValue>(2);
  tree.fixedStrings[0] = {0, Block<uint8_t>(4)};
  tree.identifiersCount = 2;
  tree.identifiers = Block<ObjectIdentifierValue>(2);
  tree.identifiers[0] = {2, Block<uint32_t>(2)};
  tree.identifiers[1] = {3, Block<uint32_t>(3)};
  tree.numbersCount = 5;
  tree.numbers = Block<uint16_t>(5);
  tree.embedded = {15, {8, Block<uint8_t>(8)}};
  return tree;
}

// Whether every pointer of a record is null; that no block is left behind is for the leak check to say.
void ExpectNoBlocks(const Tree& tree) {
  EXPECT_EQ(+tree.octets.data, nullptr);
  EXPECT_EQ(+tree.characters.data, nullptr);
  EXPECT_EQ(+tree.identifier.arcs, nullptr);
  EXPECT_EQ(+tree.leaves, nullptr);
  EXPECT_EQ(+tree.one, nullptr);
  EXPECT_EQ(+tree.strings, nullptr);
  EXPECT_EQ(+tree.fixedStrings, nullptr);
  EXPECT_EQ(+tree.identifiers, nullptr);
  EXPECT_EQ(+tree.numbers, nullptr);
  EXPECT_EQ(+tree.embedded.octets.data, nullptr);
}

TEST(ReleaseVisitor, GivesBackEveryBlockAndKeepsTheRest) {
  Tree tree = FullTree();
  Release(tree);
  ExpectNoBlocks(tree);
  EXPECT_EQ(+tree.octets.length, 3u);
  EXPECT_EQ(+tree.characters.length, 2u);
  EXPECT_EQ(+tree.identifier.count, 4u);
  EXPECT_EQ(+tree.leavesCount, 3u);
  EXPECT_EQ(+tree.stringsCount, 2u);
  EXPECT_EQ(+tree.identifiersCount, 2u);
  EXPECT_EQ(+tree.numbersCount, 5u);
  EXPECT_EQ(+tree.embedded.number, 15u);
  EXPECT_EQ(+tree.embedded.octets.length, 8u);
}

TEST(ReleaseVisitor, DoesNothingTheSecondTime) {
  Tree tree = FullTree();
  Release(tree);
  Release(tree);
  ExpectNoBlocks(tree);
  EXPECT_EQ(+tree.leavesCount, 3u);
}

TEST(ReleaseVisitor, PassesOverCountsWithoutABlock) {
  Tree tree{};
  tree.leavesCount = 255;
  tree.stringsCount = 255;
  tree.identifiersCount = 255;
  tree.numbersCount = 255;
  tree.identifier.count = 1000;
  Release(tree);
  ExpectNoBlocks(tree);
}

TEST(ReleaseVisitor, GivesBackABlockWhoseCountIsZero) {
  Tree tree{};
  tree.leaves = Block<Leaf>();
  tree.numbers = Block<uint16_t>();
  tree.strings = Block<OctetStringValue>();
  tree.embedded.octets.data = Block<uint8_t>();
  Release(tree);
  ExpectNoBlocks(tree);
}

TEST(ReleaseVisitor, LeavesAbsentMembersAlone) {
  uint8_t stranger = 42;  // not from the heap
  Tree tree{};
  tree.octets = {1, &stranger};
  Release(tree);
  EXPECT_EQ(+tree.octets.data, &stranger);
}

}  // namespace
}  // namespace kelvra

#include "kelvra/end_descriptions.h"
