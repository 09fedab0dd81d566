// The body of every fuzzer and regression case: decodes a message from a heap block of exactly its size into a heap
// record, reads the whole record as a program would, and releases it.
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace kelvra::fuzz {

// Each aborts on a broken promise of the library that a sanitizer cannot see: an undocumented result, or a pointer left
// after the release.
void DecodeAndReleaseRas(const uint8_t* octets, size_t size);
void DecodeAndReleaseQ931(const uint8_t* octets, size_t size);
void DecodeAndReleaseH245(const uint8_t* octets, size_t size);

}  // namespace kelvra::fuzz
