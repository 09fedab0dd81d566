#include "h225/ras/gatekeeper_discovery_decode.h"
#include "h225/ras/ras_message_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeRasMessage(RasMessageRecord& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, RasMessageNames::kRoots);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeGatekeeperRequest(m.gatekeeperRequest, r);
    case 1: return DecodeGatekeeperConfirm(m.gatekeeperConfirm, r);
    case 2: return DecodeGatekeeperReject(m.gatekeeperReject, r);
    default: return index < RasMessageNames::kRoots ? kDecoded : kMalformed;
  }
}

}  // namespace kelvra::h225
