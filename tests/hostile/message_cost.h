// The cost of a message in deterministic numbers.
#pragma once

#include <cstdint>
#include <vector>

#include "faults/message_corpus.h"

namespace kelvra::test {

struct MessageCost {
  uint32_t reread;   // octets read again
  uint32_t claimed;  // octets of blocks
};

// Decodes the octets like the family's export, and releases the record.
MessageCost CostOf(Family family, const std::vector<uint8_t>& octets);

}  // namespace kelvra::test
