// Replaces the library's heap and diagnostic hook: both record each call, and the heap refuses on demand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace kelvra::test {

struct Release {
  const void* block;
  std::string sourcePath;
};

struct TraceCall {
  int32_t module;
  int32_t severity;
  int32_t reason;
  int32_t source;
  int32_t line;

  bool operator==(const TraceCall&) const = default;
};

class HeapDouble {
 public:
  static HeapDouble& Instance();

  // Forgets all records and refusals. Live blocks stay live.
  void Reset();
  // Frees the remaining live blocks, so that a leak fails only the test that made it.
  void DropLiveBlocks();
  // Refuses the n-th allocation from now on, counting from 1.
  void RefuseOnly(size_t nth);
  // Refuses the n-th allocation and all after it.
  void RefuseFrom(size_t nth);
  // Calls `between` before each allocation, except one that it makes itself.
  void OnAllocation(std::function<void()> between) { between_ = std::move(between); }

  size_t Requests() const { return requests_; }
  size_t Refusals() const { return refusals_; }
  uint64_t OctetsGranted() const { return octetsGranted_; }
  // The blocks granted, in order.
  const std::vector<const void*>& Granted() const { return granted_; }
  const std::vector<Release>& Releases() const { return releases_; }
  const std::vector<TraceCall>& Traces() const { return traces_; }
  // The blocks granted and not yet released, sorted.
  std::vector<const void*> LiveBlocks() const;
  // Releases of something other than a live block.
  size_t WildReleases() const { return wildReleases_; }

  void* Allocate(size_t size);
  void Free(void* slot, const char* sourcePath);
  void Trace(const TraceCall& call) { traces_.push_back(call); }

 private:
  std::unordered_map<const void*, size_t> live_;
  std::vector<const void*> granted_;
  std::vector<Release> releases_;
  std::vector<TraceCall> traces_;
  size_t requests_ = 0;
  size_t refusals_ = 0;
  size_t wildReleases_ = 0;
  uint64_t octetsGranted_ = 0;
  size_t firstRefused_ = 0;
  size_t lastRefused_ = 0;
  std::function<void()> between_;
};

}  // namespace kelvra::test
