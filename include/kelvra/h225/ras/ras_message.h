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

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

// Extension alternatives reuse the tags from 0, so check `isExtension` before `choiceTag`. An alternative that is not
// in the union is skipped: only its tag is kept.
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(gatekeeperRequest, DefinedType());
    KELVRA_ALTERNATIVE(gatekeeperConfirm, DefinedType());
    KELVRA_ALTERNATIVE(gatekeeperReject, DefinedType());
    KELVRA_ALTERNATIVE(registrationRequest, DefinedType());
    KELVRA_ALTERNATIVE(registrationConfirm, DefinedType());
    KELVRA_ALTERNATIVE(registrationReject, DefinedType());
    KELVRA_ALTERNATIVE(unregistrationRequest, DefinedType());
    KELVRA_ALTERNATIVE(unregistrationConfirm, DefinedType());
    KELVRA_ALTERNATIVE(unregistrationReject, DefinedType());
    KELVRA_ALTERNATIVE(admissionRequest, DefinedType());
    KELVRA_ALTERNATIVE(admissionConfirm, DefinedType());
    KELVRA_ALTERNATIVE(admissionReject, DefinedType());
    KELVRA_ALTERNATIVE(bandwidthRequest, DefinedType());
    KELVRA_ALTERNATIVE(bandwidthConfirm, DefinedType());
    KELVRA_ALTERNATIVE(bandwidthReject, DefinedType());
    KELVRA_ALTERNATIVE(disengageRequest, DefinedType());
    KELVRA_ALTERNATIVE(disengageConfirm, DefinedType());
    KELVRA_ALTERNATIVE(disengageReject, DefinedType());
    KELVRA_ALTERNATIVE(locationRequest, DefinedType());
    KELVRA_ALTERNATIVE(locationConfirm, DefinedType());
    KELVRA_ALTERNATIVE(locationReject, DefinedType());
    KELVRA_ALTERNATIVE(infoRequest, DefinedType());
    KELVRA_ALTERNATIVE(infoRequestResponse, DefinedType());
    KELVRA_ALTERNATIVE(nonStandardMessage, DefinedType());
    KELVRA_ALTERNATIVE(unknownMessageResponse, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(requestInProgress, DefinedType());
    KELVRA_ALTERNATIVE(resourcesAvailableIndicate, DefinedType());
    KELVRA_ALTERNATIVE(resourcesAvailableConfirm, DefinedType());
    KELVRA_ALTERNATIVE(infoRequestAck, DefinedType());
    KELVRA_ALTERNATIVE(infoRequestNak, DefinedType());
    KELVRA_ALTERNATIVE(serviceControlIndication, DefinedType());
    KELVRA_ALTERNATIVE(serviceControlResponse, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
