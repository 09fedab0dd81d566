// The process heap behind CodecAlloc and CodecFree, in a file of its own so that a test can link a
// heap that records or refuses.
#include <stdlib.h>

#include "codec/memory.h"

namespace kelvra {
namespace {

// The GNU C library keeps a cache of free blocks for each thread, which serves malloc but not calloc:
// clearing what the cache holds ourselves costs a third of a calloc. Elsewhere, the heap of Windows
// included, both take the same way.
#ifdef __GLIBC__
constexpr size_t kLargestCached = 1032;
#else
constexpr size_t kLargestCached = 0;
#endif

// What the compiler does not know to come from malloc, so that clearing it does not make a calloc of both.
void* UnclearedBlock(size_t size) {
  void* block = malloc(size);
  __asm__("" : "+r"(block));
  return block;
}

}  // namespace

void* CodecAlloc(size_t size) {
  if (size > kLargestCached) return calloc(size, 1);
  void* block = UnclearedBlock(size);
  return block == nullptr ? nullptr : CodecFill(block, 0, size);
}

void CodecFree(void* slot, const char* /*sourcePath*/, int /*line*/) {
  if (slot == nullptr) return;
  void* block = nullptr;
  __builtin_memcpy(&block, slot, sizeof block);
  if (block == nullptr) return;
  free(block);
  __builtin_memset(slot, 0, sizeof block);
}

}  // namespace kelvra
