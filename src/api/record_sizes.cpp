// The sizes that a caller of the 32-bit library allocates. docs/records.md tells the layout of all records.
#include <stddef.h>

#include "api/kelvra.h"

namespace kelvra {
namespace {

constexpr bool kPointersAre32Bits = sizeof(void*) == 4;

// Holds everywhere but where pointers are four octets wide.
template <class Record>
constexpr bool Occupies(size_t octets) {
  return !kPointersAre32Bits || sizeof(Record) == octets;
}

static_assert(Occupies<h225::RasMessageRecord>(910));
static_assert(Occupies<h225::Q931MessageRecord>(1750));
static_assert(Occupies<h245::H245MessageRecord>(1861));

}  // namespace
}  // namespace kelvra
