// Collects the blocks that a record reaches, and the slots that a refused block left empty.
#pragma once

#include <cstdint>
#include <map>
#include <type_traits>
#include <vector>

#include "block_visitor.h"
#include "kelvra/kelvra.h"

namespace kelvra::test {

// What the slot of a block is for.
enum class SlotKind { kString, kList, kListInsideH245 };

class OwnershipVisitor : public BlockVisitor<OwnershipVisitor> {
 public:
  template <class R>
  void Record(const char* name, R& record) {
    constexpr uint32_t kLevel = kBelongsToH245<std::remove_const_t<R>> ? 1 : 0;
    insideH245_ += kLevel;
    BlockVisitor::Record(name, record);
    insideH245_ -= kLevel;
  }
  template <class T>
  void Block(Slot<T> slot, uint32_t count, BlockKind kind) {
    // Whether a record in a block of its own was there at all does not show beside a null pointer.
    See(slot.Get(), slot.Get() == nullptr && kind == BlockKind::kRecord ? 0 : count, kind == BlockKind::kString);
  }

  // Sorted; a block that two slots share appears twice.
  std::vector<const void*> Blocks() const;
  std::map<const void*, SlotKind> Kinds() const;
  // Slots without a block beside a count that is not zero.
  uint32_t EmptyStrings() const { return emptyStrings_; }
  uint32_t EmptyLists() const { return emptyLists_; }  // of H.225.0 records

 private:
  struct FoundBlock {
    const void* address;
    SlotKind kind;
  };

  // The H.245 types that H.225.0 records hold. Their decoders go on where a block was refused.
  template <class R>
  static constexpr bool kBelongsToH245 =
      std::is_same_v<R, h245::OpenLogicalChannel> || std::is_same_v<R, h245::DataProtocolCapability> ||
      std::is_same_v<R, h245::T38FaxProfile>;

  void See(const void* block, uint32_t count, bool isString);

  std::vector<FoundBlock> blocks_;
  uint32_t insideH245_ = 0;
  uint32_t emptyStrings_ = 0;
  uint32_t emptyLists_ = 0;
};

}  // namespace kelvra::test
