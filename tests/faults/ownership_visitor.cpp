#include "faults/ownership_visitor.h"

#include <algorithm>

namespace kelvra::test {

std::vector<const void*> OwnershipVisitor::Blocks() const {
  std::vector<const void*> sorted;
  sorted.reserve(blocks_.size());
  for (const FoundBlock& block : blocks_) sorted.push_back(block.address);
  std::sort(sorted.begin(), sorted.end());
  return sorted;
}

std::map<const void*, SlotKind> OwnershipVisitor::Kinds() const {
  std::map<const void*, SlotKind> kinds;
  for (const FoundBlock& block : blocks_) kinds.emplace(block.address, block.kind);
  return kinds;
}

void OwnershipVisitor::See(const void* block, uint32_t count, bool isString) {
  if (block != nullptr) {
    const SlotKind list = insideH245_ != 0 ? SlotKind::kListInsideH245 : SlotKind::kList;
    blocks_.push_back({block, isString ? SlotKind::kString : list});
  } else if (count != 0) {
    if (isString) ++emptyStrings_;
    if (!isString && insideH245_ == 0) ++emptyLists_;
  }
}

}  // namespace kelvra::test
