#include <string.h>

#include "codec/memory.h"

namespace kelvra {

void CodecCopy(void* destination, const void* source, size_t count) {
  if (count != 0) memcpy(destination, source, count);
}

void* CodecFill(void* destination, uint8_t value, size_t count) {
  return count == 0 ? destination : memset(destination, value, count);
}

}  // namespace kelvra
