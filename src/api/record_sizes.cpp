// The sizes that a caller of the 32-bit library allocates. docs/records.md gives the layout of all records.

#include "kelvra/kelvra.h"

namespace kelvra {
namespace {

// Checks the size with 32-bit pointers only.
template <class Record>
constexpr bool Occupies(uint32_t octets) {
  return sizeof(void*) != 4 || sizeof(Record) == octets;
}

static_assert(Occupies<h225::RasMessageRecord>(910));
static_assert(Occupies<h225::Q931MessageRecord>(1750));
static_assert(Occupies<h245::H245MessageRecord>(1861));

}  // namespace
}  // namespace kelvra
