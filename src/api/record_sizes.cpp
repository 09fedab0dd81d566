// The sizes that callers of the 32-bit library allocate, or step by through a list. The tests hold every
// member of every record against docs/records.md.
#include "api/kelvra.h"

namespace kelvra {
namespace {

// Holds everywhere but where pointers are four octets wide.
template <class Record>
constexpr bool Occupies(uint32_t octets) {
  return sizeof(void*) != 4 || sizeof(Record) == octets;
}

static_assert(Occupies<h225::RasMessageRecord>(910));
static_assert(Occupies<h225::Q931MessageRecord>(1750));
static_assert(Occupies<h245::H245MessageRecord>(1861));

static_assert(Occupies<h225::AliasAddress>(159));
static_assert(Occupies<h225::CryptoH323Token>(434));
static_assert(Occupies<h225::Endpoint>(530));
static_assert(Occupies<h235::ClearToken>(328));
static_assert(Occupies<h245::OpenLogicalChannel>(1845));

}  // namespace
}  // namespace kelvra
