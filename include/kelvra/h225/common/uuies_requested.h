// Which call-signalling messages a gatekeeper asks endpoints to report.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct UUIEsRequested {
  uint32_t setup;
  uint32_t callProceeding;
  uint32_t connect;
  uint32_t alerting;
  uint32_t information;
  uint32_t releaseComplete;
  uint32_t facility;
  uint32_t progress;
  uint32_t empty;
  uint32_t isExtended;
  uint32_t hasStatus;
  uint32_t status;
  uint32_t hasStatusInquiry;
  uint32_t statusInquiry;
  uint32_t hasSetupAcknowledge;
  uint32_t setupAcknowledge;
  uint32_t hasNotify;
  uint32_t notify;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(setup, Boolean());
    KELVRA_MEMBER(callProceeding, Boolean());
    KELVRA_MEMBER(connect, Boolean());
    KELVRA_MEMBER(alerting, Boolean());
    KELVRA_MEMBER(information, Boolean());
    KELVRA_MEMBER(releaseComplete, Boolean());
    KELVRA_MEMBER(facility, Boolean());
    KELVRA_MEMBER(progress, Boolean());
    KELVRA_MEMBER(empty, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasStatus, status, Boolean());
    KELVRA_ADDITION(hasStatusInquiry, statusInquiry, Boolean());
    KELVRA_ADDITION(hasSetupAcknowledge, setupAcknowledge, Boolean());
    KELVRA_ADDITION(hasNotify, notify, Boolean());
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
