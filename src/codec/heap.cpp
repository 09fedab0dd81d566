// CodecAlloc and CodecFree on the process heap, in a separate file so that a test can link a heap that records or
// refuses.
#include <stdlib.h>

#include "codec/memory.h"

namespace kelvra {
namespace {

// The GNU C library caches free blocks per thread for malloc, but not for calloc: malloc and clearing cost a third of
// calloc. Elsewhere, including on Windows, both take the same path.
#ifdef __GLIBC__
constexpr size_t kLargestCached = 1032;
#else
constexpr size_t kLargestCached = 0;
#endif

// Hides malloc from the compiler, which would merge it with the clearing into calloc.
void* UnclearedBlock(size_t size) {
  void* block = malloc(size);
  __asm__("" : "+r"(block));
  // NOLINTNEXTLINE(clang-analyzer-unix.Malloc): the analyzer loses sight of the block above.
  return block;
}

// Most blocks have a few words, and storing these is cheaper than a call.
void Clear(void* block, size_t size) {
  constexpr size_t kMostWords = 8;
  auto* octets = static_cast<uint8_t*>(block);
  if (size < sizeof(uint64_t) || size > kMostWords * sizeof(uint64_t)) {
    CodecFill(octets, 0, size);
    return;
  }
  for (size_t i = 0; i + sizeof(uint64_t) < size; i += sizeof(uint64_t))
    __builtin_memset(octets + i, 0, sizeof(uint64_t));
  __builtin_memset(octets + size - sizeof(uint64_t), 0, sizeof(uint64_t));
}

}  // namespace

void* CodecAlloc(size_t size) {
  if (size > kLargestCached) return calloc(size, 1);
  void* block = UnclearedBlock(size);
  if (block != nullptr) Clear(block, size);
  return block;
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
