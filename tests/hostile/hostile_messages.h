// Messages made to keep a decoder busy: lists, nesting, bitmaps, object identifiers and open types as
// large as they may be, and open types that end before what is read in them, so that octets are read over
// and over. None of them conforms but those that say so.
#pragma once

#include <cstdint>
#include <vector>

#include "faults/message_corpus.h"

namespace kelvra::test {

// Each message with `size` octets, or fewer where it needs no more. Sizes from 16 to 64 kB serve them all.
std::vector<Message> HostileMessages(size_t size);

// Conforming: a registration whose aliases are read again, with its spare octet, and how many aliases it has.
std::vector<uint8_t> RegistrationOfAliases(size_t size);
uint32_t AliasesOfRegistration(size_t size);

// Conforming: a capability set of which one capability lies eleven open types deep, one more than are kept apart.
// The reader resumes in the innermost data, where another capability as deep seems to begin, four times over.
std::vector<uint8_t> CapabilitiesElevenDeep(size_t size);

}  // namespace kelvra::test
