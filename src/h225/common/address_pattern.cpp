#include "h225/common/address_pattern_decode.h"
#include "h225/common/addresses_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeRange(AddressPattern::Range& m, PerReader& r) {
  KELVRA_TRY(DecodePartyNumber(m.startOfRange, r));
  return DecodePartyNumber(m.endOfRange, r);
}

}  // namespace

Status DecodeAddressPattern(AddressPattern& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeAliasAddress(m.wildcard, r);
    case 1: return DecodeRange(m.range, r);
    default: return kMalformed;
  }
}

}  // namespace kelvra::h225
