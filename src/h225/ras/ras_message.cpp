#include "h225/ras/admission_decode.h"
#include "h225/ras/bandwidth_messages_decode.h"
#include "h225/ras/disengage_decode.h"
#include "h225/ras/gatekeeper_discovery_decode.h"
#include "h225/ras/info_request_ack_decode.h"
#include "h225/ras/info_request_decode.h"
#include "h225/ras/info_request_response_decode.h"
#include "h225/ras/location_decode.h"
#include "h225/ras/non_standard_message_decode.h"
#include "h225/ras/ras_message_decode.h"
#include "h225/ras/registration_decode.h"
#include "h225/ras/request_in_progress_decode.h"
#include "h225/ras/resources_available_decode.h"
#include "h225/ras/service_control_decode.h"
#include "h225/ras/unregistration_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeRasMessage(RasMessageRecord& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 25);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.requestInProgress, r, DecodeRequestInProgress);
      case 1: return DecodeOpen(m.resourcesAvailableIndicate, r, DecodeResourcesAvailableIndicate);
      case 2: return DecodeOpen(m.resourcesAvailableConfirm, r, DecodeResourcesAvailableConfirm);
      case 3: return DecodeOpen(m.infoRequestAck, r, DecodeInfoRequestAck);
      case 4: return DecodeOpen(m.infoRequestNak, r, DecodeInfoRequestNak);
      case 5: return DecodeOpen(m.serviceControlIndication, r, DecodeServiceControlIndication);
      case 6: return DecodeOpen(m.serviceControlResponse, r, DecodeServiceControlResponse);
      default: return SkipAlternative(r);
    }
  }
  switch (index) {
    case 0: return DecodeGatekeeperRequest(m.gatekeeperRequest, r);
    case 1: return DecodeGatekeeperConfirm(m.gatekeeperConfirm, r);
    case 2: return DecodeGatekeeperReject(m.gatekeeperReject, r);
    case 3: return DecodeRegistrationRequest(m.registrationRequest, r);
    case 4: return DecodeRegistrationConfirm(m.registrationConfirm, r);
    case 5: return DecodeRegistrationReject(m.registrationReject, r);
    case 6: return DecodeUnregistrationRequest(m.unregistrationRequest, r);
    case 7: return DecodeUnregistrationConfirm(m.unregistrationConfirm, r);
    case 8: return DecodeUnregistrationReject(m.unregistrationReject, r);
    case 9: return DecodeAdmissionRequest(m.admissionRequest, r);
    case 10: return DecodeAdmissionConfirm(m.admissionConfirm, r);
    case 11: return DecodeAdmissionReject(m.admissionReject, r);
    case 12: return DecodeBandwidthRequest(m.bandwidthRequest, r);
    case 13: return DecodeBandwidthConfirm(m.bandwidthConfirm, r);
    case 14: return DecodeBandwidthReject(m.bandwidthReject, r);
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
    default: return kMalformed;
  }
}

}  // namespace kelvra::h225
