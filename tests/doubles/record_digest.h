// A digest of all octets of a record and its blocks, pointers aside: whether a member is walked or not,
// whether a list's element was reached or not. Equal decodes have equal digests, on each target whose
// records have the same layout.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "api/kelvra.h"
#include "record/walk.h"

namespace kelvra::test {

class Digest {
 public:
  void Add(const void* octets, size_t count);
  void AddWord(uint64_t word);
  uint64_t Value() const { return value_; }

 private:
  uint64_t value_ = 0xCBF29CE484222325;
};

// Finds the blocks of a record and the slots that hold their addresses.
class BlockCollector {
 public:
  struct Block {
    const void* address;
    size_t size;
  };

  void Number(const char*, int64_t) {}
  void Boolean(const char*, uint32_t) {}
  void EnumeratedValue(uint32_t, const char*) {}
  void Null(const char*) {}
  void Embedded(const char*, const uint8_t*, uint32_t, OctetNotation) {}
  void UnknownExtension(uint32_t) {}
  void UnknownRoot(uint32_t) {}

  template <class Value>
  void ObjectIdentifier(const char* name, Value& value) {
    Numbers(name, KELVRA_COUNTED_LIST(value.count, value.arcs));
  }
  template <class Value>
  void Characters16(const char* name, Value& value) {
    Numbers(name, KELVRA_COUNTED_LIST(value.length, value.data));
  }
  void Octets(const char*, Slot<uint8_t> slot, uint32_t count, OctetNotation notation) {
    const bool bits = notation == OctetNotation::kBits || notation == OctetNotation::kFixedBits;
    See(slot, bits ? (size_t{count} + 7) / 8 : count);
  }
  template <class R>
  void Record(const char*, R& record) {
    R::Walk(record, *this);
  }
  template <class R>
  void Pointer(const char*, Slot<R> slot) {
    See(slot, sizeof(R));
    if (R* record = slot.Get()) R::Walk(*record, *this);
  }
  template <class L>
  void List(const char*, L list) {
    SeeList(list);
    for (auto& element : list) L::Element::Walk(element, *this);
  }
  template <class L>
  void Numbers(const char*, L list) {
    SeeList(list);
  }
  template <class L>
  void ObjectIdentifiers(const char* name, L list) {
    SeeList(list);
    for (auto& element : list) ObjectIdentifier(name, element);
  }
  template <class L>
  void OctetStrings(const char* name, L list, OctetNotation notation) {
    SeeList(list);
    for (auto& element : list) Octets(name, KELVRA_SLOT(element.data), element.length, notation);
  }
  template <class L>
  void FixedOctetStrings(const char* name, L list, uint32_t size) {
    SeeList(list);
    for (auto& element : list) Octets(name, KELVRA_SLOT(element.data), size, OctetNotation::kOctets);
  }

  const std::vector<Block>& Blocks() const { return blocks_; }

  // Adds the record and all blocks, each with null in the place of its pointers.
  void AddTo(Digest& digest, const void* record, size_t size) const;

 private:
  template <class T>
  void See(Slot<T> slot, size_t size) {
    if (slot.Get() == nullptr) return;
    slots_.push_back(slot.Address());
    blocks_.push_back({slot.Get(), size});
  }
  template <class L>
  void SeeList(L list) {
    See(list.Elements(), list.Size() * sizeof(typename L::Element));
  }

  std::vector<void*> slots_;
  std::vector<Block> blocks_;
};

// Of a Q.931 message they are those of the user information, whether it is marked as present or not.
BlockCollector BlocksOf(h225::RasMessageRecord& record);
BlockCollector BlocksOf(h225::Q931MessageRecord& record);
BlockCollector BlocksOf(h245::H245MessageRecord& record);

}  // namespace kelvra::test
