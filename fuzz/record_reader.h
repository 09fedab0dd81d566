// Reads a record as far as its counts and pointers reach, so that a sanitizer sees a block that is too small or freed.
#pragma once

#include <stdint.h>

#include "block_visitor.h"

namespace kelvra::fuzz {

class RecordReader : public test::BlockVisitor<RecordReader> {
 public:
  // The number of blocks that the record reaches.
  uint32_t Blocks() const { return blocks_; }
  // Depends on every octet read, so that no read is optimised away.
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
