// Octets in a heap block of exactly their size, so that a sanitizer sees a read past them.
#pragma once

#include <stdint.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace kelvra::test {

class ExactBuffer {
 public:
  // `spare` zero octets follow those given, or the first `count` of them.
  explicit ExactBuffer(const std::vector<uint8_t>& octets, size_t spare = 0)
      : ExactBuffer(octets, octets.size(), spare) {}
  // Not inlined: with a sanitizer, GCC takes the copy of zero octets for one past the block.
  [[gnu::noinline]] ExactBuffer(const std::vector<uint8_t>& octets, size_t count, size_t spare)
      : size_(static_cast<uint32_t>(count + spare)), octets_(new uint8_t[count + spare]()) {
    std::copy_n(octets.begin(), count, octets_.get());
  }

  const uint8_t* Data() const { return octets_.get(); }
  uint32_t Size() const { return size_; }

 private:
  uint32_t size_;
  std::unique_ptr<uint8_t[]> octets_;
};

}  // namespace kelvra::test
