// Finds the blocks of a record. A visitor derives from this and has
//
//   template <class T> void Block(Slot<T> slot, uint32_t count);
//
// It receives the slot of each block, null or not, and the element count that the record gives, before the visitor
// enters the block.
#pragma once

#include <cstdint>

#include "kelvra/walk.h"

namespace kelvra::test {

template <class Derived>
class BlockVisitor : public EmptyVisitor {
 public:
  void ObjectIdentifier(const char*, const ObjectIdentifierValue& value) {
    Self().Block(Slot<uint32_t>(&value.arcs), value.count);
  }
  void WideCharacters(const char*, const BMPStringValue& value) {
    Self().Block(Slot<uint16_t>(&value.data), value.length);
  }
  void Octets(const char*, Slot<uint8_t> slot, uint32_t count, OctetNotation notation) {
    Self().Block(slot, StringOctets(count, notation));
  }
  template <class R>
  void Record(const char*, R& record) {
    R::Walk(record, Self());
  }
  template <class R>
  void Pointer(const char*, Slot<R> slot) {
    Self().Block(slot, 1);
    if (R* record = slot.Get()) Self().Record(nullptr, *record);
  }
  template <class L, class Show>
  void List(const char*, L list, Show show) {
    Self().Block(list.Elements(), list.Size());
    for (auto& element : list) show(element);
  }

 private:
  Derived& Self() { return static_cast<Derived&>(*this); }
};

}  // namespace kelvra::test
