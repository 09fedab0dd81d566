// Finds the blocks of a record. A visitor derives from this and has
//
//   template <class T> void Block(Slot<T> slot, uint32_t count, BlockKind kind);
//
// which is shown the slot of each block, null or not, and how many elements the record says that it holds, before what
// hangs off the block.
#pragma once

#include <cstdint>

#include "kelvra/walk.h"

namespace kelvra::test {

enum class BlockKind : uint8_t { kString, kList, kRecord };

template <class Derived>
class BlockVisitor : public EmptyVisitor {
 public:
  void ObjectIdentifier(const char*, const ObjectIdentifierValue& value) {
    Found(Slot<uint32_t>(&value.arcs), value.count, BlockKind::kString);
  }
  void WideCharacters(const char*, const BMPStringValue& value) {
    Found(Slot<uint16_t>(&value.data), value.length, BlockKind::kString);
  }
  void Octets(const char*, Slot<uint8_t> slot, uint32_t count, OctetNotation notation) {
    Found(slot, StringOctets(count, notation), BlockKind::kString);
  }
  template <class R>
  void Record(const char*, R& record) {
    R::Walk(record, Self());
  }
  template <class R>
  void Pointer(const char*, Slot<R> slot) {
    Found(slot, 1, BlockKind::kRecord);
    if (R* record = slot.Get()) Self().Record(nullptr, *record);
  }
  template <class L, class Show>
  void List(const char*, L list, Show show) {
    Found(list.Elements(), list.Size(), BlockKind::kList);
    for (auto& element : list) show(element);
  }

 private:
  Derived& Self() { return static_cast<Derived&>(*this); }
  template <class T>
  void Found(Slot<T> slot, uint32_t count, BlockKind kind) {
    Self().Block(slot, count, kind);
  }
};

}  // namespace kelvra::test
