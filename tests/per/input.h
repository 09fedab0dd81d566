// A message in a heap block of exactly its size, and the reader queries of the tests.
#pragma once

#include <stdint.h>

#include <string>
#include <vector>

#include "codec/memory.h"
#include "exact_buffer.h"
#include "per/reader.h"

namespace kelvra::test {

class Input {
 public:
  explicit Input(const std::vector<uint8_t>& octets) : buffer_(octets) {
    PerReaderInit(reader, buffer_.Data(), buffer_.Size());
  }
  // For a frame that claims `length` octets, however many there are.
  Input(const std::vector<uint8_t>& octets, uint32_t length) : buffer_(octets) {
    PerReaderInit(reader, buffer_.Data(), length, buffer_.Size());
  }

  // The next whole octet. The marker after a value shows where its decoder stopped.
  uint32_t Next() {
    PerAlign(reader);
    return PerReadBits(reader, 8);
  }
  // Bits consumed so far, including any past the end.
  uint64_t Bit() const {
    return uint64_t{reinterpret_cast<uintptr_t>(reader.position) - reinterpret_cast<uintptr_t>(buffer_.Data())} * 8 +
           reader.bitOffset;
  }
  // True if the reader stands exactly at its end with nothing pending.
  bool AtExactEnd() const { return reader.position == reader.end && reader.bitOffset == 0; }

  PerReader reader;

 private:
  ExactBuffer buffer_;
};

// Copies `count` elements out of a block that a primitive returned, and releases it. A null block differs from every
// content.
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
