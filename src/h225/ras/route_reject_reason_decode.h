#pragma once

#include "codec/status.h"
#include "h225/common/addresses_decode.h"
#include "h225/ras/route_reject_reason.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

// What travels with aliasesInconsistent is passed over, also where it is a list of aliases.
template <class Names>
Status DecodeRouteRejectReason(RouteRejectReason<Names>& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, Names::kRoots);
  if (!m.isExtension) return NullAlternative(index, Names::kRoots);
  if (index == Names::kRouteCalltoSCN) return DecodeOpenSequenceOf(ListOf(m.routeCalltoSCN), r, DecodePartyNumber);
  return PassOverAlternative(r, index, ExtensionsOf<Names>());
}

}  // namespace kelvra::h225
