// RasMessage, the outermost record of the RAS family.
#pragma once

#include "admission.h"
#include "disengage.h"
#include "gatekeeper_discovery.h"
#include "info_request.h"
#include "info_request_response.h"
#include "location.h"
#include "non_standard_message.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct RasMessageNames {
  static constexpr uint32_t kRoots = 25;
  static constexpr const char* kAlternatives[] = {"gatekeeperRequest",
                                                  "gatekeeperConfirm",
                                                  "gatekeeperReject",
                                                  "registrationRequest",
                                                  "registrationConfirm",
                                                  "registrationReject",
                                                  "unregistrationRequest",
                                                  "unregistrationConfirm",
                                                  "unregistrationReject",
                                                  "admissionRequest",
                                                  "admissionConfirm",
                                                  "admissionReject",
                                                  "bandwidthRequest",
                                                  "bandwidthConfirm",
                                                  "bandwidthReject",
                                                  "disengageRequest",
                                                  "disengageConfirm",
                                                  "disengageReject",
                                                  "locationRequest",
                                                  "locationConfirm",
                                                  "locationReject",
                                                  "infoRequest",
                                                  "infoRequestResponse",
                                                  "nonStandardMessage",
                                                  "unknownMessageResponse",
                                                  "requestInProgress",
                                                  "resourcesAvailableIndicate",
                                                  "resourcesAvailableConfirm",
                                                  "infoRequestAck",
                                                  "infoRequestNak",
                                                  "serviceControlIndication",
                                                  "serviceControlResponse"};
};

// Extension alternatives reuse the tags from 0, so look at `isExtension` before `choiceTag`. An
// alternative beyond those of the union is passed over: only its tag is kept.
struct RasMessageRecord {
  uint8_t choiceTag;
  union {
    GatekeeperRequest gatekeeperRequest;
    GatekeeperConfirm gatekeeperConfirm;
    GatekeeperReject gatekeeperReject;
    AdmissionRequest admissionRequest;
    AdmissionConfirm admissionConfirm;
    AdmissionReject admissionReject;
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
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return WalkNullChoice<RasMessageNames>(v, m.isExtension, m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("gatekeeperRequest", m.gatekeeperRequest);
      case 1: return v.Record("gatekeeperConfirm", m.gatekeeperConfirm);
      case 2: return v.Record("gatekeeperReject", m.gatekeeperReject);
      case 9: return v.Record("admissionRequest", m.admissionRequest);
      case 10: return v.Record("admissionConfirm", m.admissionConfirm);
      case 11: return v.Record("admissionReject", m.admissionReject);
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
      default: return WalkNullChoice<RasMessageNames>(v, m.isExtension, m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
