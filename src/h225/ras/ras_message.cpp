#include "h225/ras/gatekeeper_discovery_decode.h"
#include "h225/ras/location_decode.h"
#include "h225/ras/non_standard_message_decode.h"
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
    case 18: return DecodeLocationRequest(m.locationRequest, r);
    case 19: return DecodeLocationConfirm(m.locationConfirm, r);
    case 20: return DecodeLocationReject(m.locationReject, r);
    case 23: return DecodeNonStandardMessage(m.nonStandardMessage, r);
    case 24: return DecodeUnknownMessageResponse(m.unknownMessageResponse, r);
    default: return index < RasMessageNames::kRoots ? kDecoded : kMalformed;
  }
}

}  // namespace kelvra::h225
