// Reads a record as far as its counts and pointers say, so that a sanitizer sees a block that is smaller
// than its count, or is gone.
#pragma once

#include <stdint.h>

#include "block_visitor.h"

namespace kelvra::fuzz {

class RecordReader : public test::BlockVisitor<RecordReader> {
 public:
  // How many blocks the record reaches.
  uint32_t Blocks() const { return blocks_; }
  // Depends on every octet that was read, so that no read can be left out.
  uint32_t Sum() const { return sum_; }

  template <class T>
  void Block(Slot<T> slot, uint32_t count) {
    const auto* octets = reinterpret_cast<const uint8_t*>(slot.Get());
    if (octets == nullptr) return;
    ++blocks_;
    for (uint64_t i = 0; i < uint64_t{count} * sizeof(T); ++i) sum_ += octets[i];
  }

 private:
  uint32_t blocks_ = 0;
  uint32_t sum_ = 0;
};

}  // namespace kelvra::fuzz
