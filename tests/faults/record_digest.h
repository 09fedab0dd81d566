// A digest of all octets of a record and its blocks, pointers aside: whether a member is walked or not,
// whether a list's element was reached or not. Equal decodes have equal digests, on each target whose
// records have the same layout.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "block_visitor.h"
#include "kelvra/kelvra.h"

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
class BlockCollector : public BlockVisitor<BlockCollector> {
 public:
  struct FoundBlock {
    const void* address;
    size_t size;
  };

  template <class T>
  void Block(Slot<T> slot, uint32_t count) {
    if (slot.Get() == nullptr) return;
    slots_.push_back(slot.Address());
    blocks_.push_back({slot.Get(), count * sizeof(T)});
  }

  const std::vector<FoundBlock>& Blocks() const { return blocks_; }
  // Sorted; a block that two slots share appears twice.
  std::vector<const void*> Addresses() const;

  // Adds the record and all blocks, each with null in the place of its pointers.
  void AddTo(Digest& digest, const void* record, size_t size) const;

 private:
  std::vector<void*> slots_;
  std::vector<FoundBlock> blocks_;
};

// Of a Q.931 message they are those of the user information, whether it is marked as present or not.
BlockCollector BlocksOf(h225::RasMessageRecord& record);
BlockCollector BlocksOf(h225::Q931MessageRecord& record);
BlockCollector BlocksOf(h245::H245MessageRecord& record);

}  // namespace kelvra::test
