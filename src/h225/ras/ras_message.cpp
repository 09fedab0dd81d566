#include "h225/ras/admission_decode.h"
#include "h225/ras/disengage_decode.h"
#include "h225/ras/gatekeeper_discovery_decode.h"
#include "h225/ras/info_request_decode.h"
#include "h225/ras/info_request_response_decode.h"
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
    case 9: return DecodeAdmissionRequest(m.admissionRequest, r);
    case 10: return DecodeAdmissionConfirm(m.admissionConfirm, r);
    case 11: return DecodeAdmissionReject(m.admissionReject, r);
    case 15: return DecodeDisengageRequest(m.disengageRequest, r);
    case 16: return DecodeDisengageConfirm(m.disengageConfirm, r);
    case 17: return DecodeDisengageReject(m.disengageReject, r);
    case 18: return DecodeLocationRequest(m.locationRequest, r);
    case 19: return DecodeLocationConfirm(m.locationConfirm, r);
    case 20: return DecodeLocationReject(m.locationReject, r);
    case 21: return DecodeInfoRequest(m.infoRequest, r);
    case 22: return DecodeInfoRequestResponse(m.infoRequestResponse, r);
    case 23: return DecodeNonStandardMessage(m.nonStandardMessage, r);
    case 24: return DecodeUnknownMessageResponse(m.unknownMessageResponse, r);
    default: return index < RasMessageNames::kRoots ? kDecoded : kMalformed;
  }
}

}  // namespace kelvra::h225
