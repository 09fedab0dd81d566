// Memory of decoded records: CodecAlloc allocates every block that a record owns, and CodecFree releases it.
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace kelvra {

// A zeroed block of `size` octets from the process heap, or null when the heap refuses it.
void* CodecAlloc(size_t size);

// Frees the block whose address is in the pointer at `slot` and stores null there. Does nothing if `slot` or the
// pointer in it is null. The slot may be unaligned. `sourcePath` and `line` only show a test double who released
// the block.
void CodecFree(void* slot, const char* sourcePath, int line);

// Copies `count` octets; the areas must not overlap, and may be null if `count` is 0.
inline void CodecCopy(void* destination, const void* source, size_t count) {
  if (count != 0) __builtin_memcpy(destination, source, count);
}

// Stores `value` into `count` octets and returns the destination, which may be null if `count` is 0.
inline void* CodecFill(void* destination, uint8_t value, size_t count) {
  return count == 0 ? destination : __builtin_memset(destination, value, count);
}

}  // namespace kelvra
