// The process heap behind CodecAlloc and CodecFree, in a file of its own so that a test can link a
// heap that records or refuses.
#include <stdlib.h>

#include "codec/memory.h"

namespace kelvra {

void* CodecAlloc(size_t size) { return calloc(size, 1); }

void CodecFree(void* slot, const char* /*sourcePath*/, int /*line*/) {
  if (slot == nullptr) return;
  void* block = nullptr;
  CodecCopy(&block, slot, sizeof block);
  if (block == nullptr) return;
  free(block);
  CodecFill(slot, 0, sizeof block);
}

}  // namespace kelvra
