// Why an admission or a location is refused.
#pragma once

#include <stdint.h>

#include "../common/addresses.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

// A CHOICE of NULLs but for one extension alternative: routeCalltoSCN, SEQUENCE OF PartyNumber, at
// index `Names::kRouteCalltoSCN` of the extension alternatives.
template <class Names>
struct RouteRejectReason {
  struct PartyNumberList {
    uint8_t count;
    PartyNumber* elements;
  };

  uint8_t choiceTag;
  union {
    PartyNumberList routeCalltoSCN;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension && m.choiceTag == Names::kRouteCalltoSCN) {
      return v.List("routeCalltoSCN", ListOf(m.routeCalltoSCN));
    }
    WalkNullChoice<Names>(v, m.isExtension, m.choiceTag);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
