// What every fuzzer and every regression case does with a message: decode it from a heap block of its
// very size into a record that lies in one, read the whole record as a program would, and release it.
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace kelvra::fuzz {

// Each aborts when a promise of the library is broken that a sanitizer cannot see: a result outside the
// stated ones, a pointer left behind by the release.
void DecodeAndReleaseRas(const uint8_t* octets, size_t size);
void DecodeAndReleaseQ931(const uint8_t* octets, size_t size);
void DecodeAndReleaseH245(const uint8_t* octets, size_t size);

}  // namespace kelvra::fuzz
