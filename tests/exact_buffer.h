// Octets in a heap block of exactly their size, so that a sanitizer sees a read past them.
#pragma once

#include <stdint.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace kelvra::test {

class ExactBuffer {
 public:
  // Not inlined: with a sanitizer, GCC takes the copy of zero octets for one past the block.
  [[gnu::noinline]] explicit ExactBuffer(const std::vector<uint8_t>& octets)
      : size_(static_cast<uint32_t>(octets.size())), octets_(new uint8_t[octets.size()]) {
    std::copy(octets.begin(), octets.end(), octets_.get());
  }

  const uint8_t* Data() const { return octets_.get(); }
  uint32_t Size() const { return size_; }

 private:
  uint32_t size_;
  std::unique_ptr<uint8_t[]> octets_;
};

}  // namespace kelvra::test
