// RasMessage, the outermost record of the RAS family.
#pragma once

#include "admission.h"
#include "bandwidth_messages.h"
#include "disengage.h"
#include "gatekeeper_discovery.h"
#include "info_request.h"
#include "info_request_ack.h"
#include "info_request_response.h"
#include "location.h"
#include "non_standard_message.h"
#include "registration.h"
#include "request_in_progress.h"
#include "resources_available.h"
#include "service_control.h"
#include "unregistration.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

// Extension alternatives reuse the tags from 0, so look at `isExtension` before `choiceTag`. An
// alternative beyond those of the union is passed over: only its tag is kept.
struct RasMessageRecord {
  uint8_t choiceTag;
  union {
    GatekeeperRequest gatekeeperRequest;
    GatekeeperConfirm gatekeeperConfirm;
    GatekeeperReject gatekeeperReject;
    RegistrationRequest registrationRequest;
    RegistrationConfirm registrationConfirm;
    RegistrationReject registrationReject;
    UnregistrationRequest unregistrationRequest;
    UnregistrationConfirm unregistrationConfirm;
    UnregistrationReject unregistrationReject;
    AdmissionRequest admissionRequest;
    AdmissionConfirm admissionConfirm;
    AdmissionReject admissionReject;
    BandwidthRequest bandwidthRequest;
    BandwidthConfirm bandwidthConfirm;
    BandwidthReject bandwidthReject;
    DisengageRequest disengageRequest;
    DisengageConfirm disengageConfirm;
    DisengageReject disengageReject;
    LocationRequest locationRequest;
    LocationConfirm locationConfirm;
    LocationReject locationReject;
    InfoRequest infoRequest;
    InfoRequestResponse infoRequestResponse;
    NonStandardMessage nonStandardMessage;
    UnknownMessageResponse unknownMessageResponse;
    RequestInProgress requestInProgress;
    ResourcesAvailableIndicate resourcesAvailableIndicate;
    ResourcesAvailableConfirm resourcesAvailableConfirm;
    InfoRequestAck infoRequestAck;
    InfoRequestNak infoRequestNak;
    ServiceControlIndication serviceControlIndication;
    ServiceControlResponse serviceControlResponse;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("requestInProgress", m.requestInProgress);
        case 1: return v.Record("resourcesAvailableIndicate", m.resourcesAvailableIndicate);
        case 2: return v.Record("resourcesAvailableConfirm", m.resourcesAvailableConfirm);
        case 3: return v.Record("infoRequestAck", m.infoRequestAck);
        case 4: return v.Record("infoRequestNak", m.infoRequestNak);
        case 5: return v.Record("serviceControlIndication", m.serviceControlIndication);
        case 6: return v.Record("serviceControlResponse", m.serviceControlResponse);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("gatekeeperRequest", m.gatekeeperRequest);
      case 1: return v.Record("gatekeeperConfirm", m.gatekeeperConfirm);
      case 2: return v.Record("gatekeeperReject", m.gatekeeperReject);
      case 3: return v.Record("registrationRequest", m.registrationRequest);
      case 4: return v.Record("registrationConfirm", m.registrationConfirm);
      case 5: return v.Record("registrationReject", m.registrationReject);
      case 6: return v.Record("unregistrationRequest", m.unregistrationRequest);
      case 7: return v.Record("unregistrationConfirm", m.unregistrationConfirm);
      case 8: return v.Record("unregistrationReject", m.unregistrationReject);
      case 9: return v.Record("admissionRequest", m.admissionRequest);
      case 10: return v.Record("admissionConfirm", m.admissionConfirm);
      case 11: return v.Record("admissionReject", m.admissionReject);
      case 12: return v.Record("bandwidthRequest", m.bandwidthRequest);
      case 13: return v.Record("bandwidthConfirm", m.bandwidthConfirm);
      case 14: return v.Record("bandwidthReject", m.bandwidthReject);
      case 15: return v.Record("disengageRequest", m.disengageRequest);
      case 16: return v.Record("disengageConfirm", m.disengageConfirm);
      case 17: return v.Record("disengageReject", m.disengageReject);
      case 18: return v.Record("locationRequest", m.locationRequest);
      case 19: return v.Record("locationConfirm", m.locationConfirm);
      case 20: return v.Record("locationReject", m.locationReject);
      case 21: return v.Record("infoRequest", m.infoRequest);
      case 22: return v.Record("infoRequestResponse", m.infoRequestResponse);
      case 23: return v.Record("nonStandardMessage", m.nonStandardMessage);
      case 24: return v.Record("unknownMessageResponse", m.unknownMessageResponse);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
