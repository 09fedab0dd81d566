// Compares an observed decode with the library's own.
#pragma once

#include <cstddef>
#include <cstdint>

#include "faults/message_corpus.h"

namespace kelvra::test {

// True if both leave the same record and blocks, the same status and the same position, and the observed decode reports
// a fault if this is past the end.
bool ObservedDecodeAgrees(Family family, const uint8_t* octets, size_t size);

}  // namespace kelvra::test
