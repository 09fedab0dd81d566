// A message in a heap block of exactly its size, and what a test asks of the reader over it.
#pragma once

#include <stdint.h>

#include <memory>
#include <string>
#include <vector>

#include "codec/memory.h"
#include "per/reader.h"

namespace kelvra::test {

class Input {
 public:
  // Inlined, and built with a sanitizer, GCC takes the copy of no octets for one past its block.
  [[gnu::noinline]] explicit Input(const std::vector<uint8_t>& octets) : octets_(new uint8_t[octets.size()]) {
    CodecCopy(octets_.get(), octets.data(), octets.size());
    PerReaderInit(reader, octets_.get(), static_cast<uint32_t>(octets.size()));
  }

  // The next whole octet. Where a decoder stopped shows in the marker that follows its value.
  uint32_t Next() {
    PerAlign(reader);
    return PerReadBits(reader, 8);
  }
  // Bits consumed so far, or bits behind the end where the reader stands there.
  uint64_t Bit() const {
    return uint64_t{reinterpret_cast<uintptr_t>(reader.position) - reinterpret_cast<uintptr_t>(octets_.get())} * 8 +
           reader.bitOffset;
  }
  // Whether the reader stands exactly at its end with nothing pending.
  bool AtExactEnd() const { return reader.position == reader.end && reader.bitOffset == 0; }

  PerReader reader;

 private:
  std::unique_ptr<uint8_t[]> octets_;
};

// Copies `count` elements out of a block that a primitive returned, and releases it. A null block is
// told apart from every content.
template <class Element>
std::vector<int64_t> Taken(Element* block, uint32_t count) {
  if (block == nullptr) return {-1};
  std::vector<int64_t> elements(block, block + count);
  CodecFree(&block, "test", 0);
  return elements;
}

inline std::string TakenText(uint8_t* block, uint32_t count) {
  if (block == nullptr) return "(null)";
  std::string text(block, block + count);
  CodecFree(&block, "test", 0);
  return text;
}

}  // namespace kelvra::test
