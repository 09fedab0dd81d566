// Messages that keep a decoder busy: lists, nesting, bitmaps, object identifiers and open types of the largest size,
// and open types that end before their contents, so that octets are read repeatedly. None conforms unless marked so.
#pragma once

#include <cstdint>
#include <vector>

#include "faults/message_corpus.h"

namespace kelvra::test {

// Each message with `size` octets, or fewer if it needs no more. Sizes from 16 to 64 kB work for all.
std::vector<Message> HostileMessages(size_t size);

// Conforming: a registration whose aliases are read again, with its spare octet, and the number of its aliases.
std::vector<uint8_t> RegistrationOfAliases(size_t size);
uint32_t AliasesOfRegistration(size_t size);

// Conforming: a capability set with one capability eleven open types deep, one more than the reader tracks. The reader
// resumes in the innermost data, where another capability just as deep seems to begin, four times over.
std::vector<uint8_t> CapabilitiesElevenDeep(size_t size);

}  // namespace kelvra::test
