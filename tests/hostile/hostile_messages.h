// Messages made to keep a decoder busy: lists, nesting, bitmaps, object identifiers and open types as
// large as they may be, and open types that end before what is read in them, so that octets are read over
// and over. None of them is lawful but those that say so.
#pragma once

#include <cstdint>
#include <vector>

#include "doubles/message_corpus.h"

namespace kelvra::test {

// Each message with `size` octets or a few less. Sizes from 16 to 64 kB serve them all.
std::vector<Message> HostileMessages(size_t size);

}  // namespace kelvra::test
