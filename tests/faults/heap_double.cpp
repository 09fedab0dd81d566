#include "faults/heap_double.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "codec/memory.h"
#include "codec/trace.h"

namespace kelvra {

void* CodecAlloc(size_t size) { return test::HeapDouble::Instance().Allocate(size); }

void CodecFree(void* slot, const char* sourcePath, int /*line*/) {
  test::HeapDouble::Instance().Free(slot, sourcePath);
}

void CodecTrace(int32_t module, int32_t severity, int32_t reason, int32_t source, int32_t line) {
  test::HeapDouble::Instance().Trace({module, severity, reason, source, line});
}

}  // namespace kelvra

namespace kelvra::test {

HeapDouble& HeapDouble::Instance() {
  static HeapDouble heap;
  return heap;
}

void HeapDouble::Reset() {
  granted_.clear();
  releases_.clear();
  traces_.clear();
  requests_ = 0;
  refusals_ = 0;
  wildReleases_ = 0;
  octetsGranted_ = 0;
  firstRefused_ = 0;
  lastRefused_ = 0;
  between_ = nullptr;
}

void HeapDouble::DropLiveBlocks() {
  for (const auto& [block, size] : live_) std::free(const_cast<void*>(block));
  live_.clear();
}

void HeapDouble::RefuseOnly(size_t nth) {
  firstRefused_ = requests_ + nth;
  lastRefused_ = firstRefused_;
}

void HeapDouble::RefuseFrom(size_t nth) {
  firstRefused_ = requests_ + nth;
  lastRefused_ = std::numeric_limits<size_t>::max();
}

std::vector<const void*> HeapDouble::LiveBlocks() const {
  std::vector<const void*> blocks;
  blocks.reserve(live_.size());
  for (const auto& [block, size] : live_) blocks.push_back(block);
  std::sort(blocks.begin(), blocks.end());
  return blocks;
}

void* HeapDouble::Allocate(size_t size) {
  if (const std::function<void()> between = std::exchange(between_, nullptr)) {
    between();
    between_ = between;
  }
  ++requests_;
  if (firstRefused_ != 0 && requests_ >= firstRefused_ && requests_ <= lastRefused_) {
    ++refusals_;
    return nullptr;
  }
  void* block = std::calloc(size, 1);
  if (block == nullptr) std::abort();  // the real heap is exhausted, so no test can judge the result
  live_.emplace(block, size);
  granted_.push_back(block);
  octetsGranted_ += size;
  return block;
}

void HeapDouble::Free(void* slot, const char* sourcePath) {
  if (slot == nullptr) return;
  void* block = nullptr;
  std::memcpy(&block, slot, sizeof block);
  if (block == nullptr) return;
  const auto found = live_.find(block);
  if (found == live_.end()) {
    ++wildReleases_;
  } else {
    // Later reads through this pointer must not find the old contents.
    std::memset(block, 0xDD, found->second);
    live_.erase(found);
    std::free(block);
  }
  releases_.push_back({block, sourcePath});
  std::memset(slot, 0, sizeof block);
}

}  // namespace kelvra::test
