#include "doubles/ownership_visitor.h"

#include <algorithm>

namespace kelvra::test {

std::vector<const void*> OwnershipVisitor::Blocks() const {
  std::vector<const void*> sorted;
  sorted.reserve(blocks_.size());
  for (const Block& block : blocks_) sorted.push_back(block.address);
  std::sort(sorted.begin(), sorted.end());
  return sorted;
}

std::map<const void*, BlockKind> OwnershipVisitor::Kinds() const {
  std::map<const void*, BlockKind> kinds;
  for (const Block& block : blocks_) kinds.emplace(block.address, block.kind);
  return kinds;
}

void OwnershipVisitor::See(const void* block, uint32_t count) {
  if (block != nullptr) {
    blocks_.push_back({block, BlockKind::kString});
  } else if (count != 0) {
    ++emptyStrings_;
  }
}

void OwnershipVisitor::SeeList(const void* block, uint32_t count) {
  if (block != nullptr) {
    blocks_.push_back({block, insideH245_ != 0 ? BlockKind::kListInsideH245 : BlockKind::kList});
  } else if (count != 0 && insideH245_ == 0) {
    ++emptyLists_;
  }
}

}  // namespace kelvra::test
