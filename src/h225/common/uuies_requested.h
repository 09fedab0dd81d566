// Which call-signalling messages a gatekeeper asks to be told of.
#pragma once

#include <stdint.h>

#include "../../record/walk.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("setup", m.setup);
    v.Boolean("callProceeding", m.callProceeding);
    v.Boolean("connect", m.connect);
    v.Boolean("alerting", m.alerting);
    v.Boolean("information", m.information);
    v.Boolean("releaseComplete", m.releaseComplete);
    v.Boolean("facility", m.facility);
    v.Boolean("progress", m.progress);
    v.Boolean("empty", m.empty);
    if (m.hasStatus) v.Boolean("status", m.status);
    if (m.hasStatusInquiry) v.Boolean("statusInquiry", m.statusInquiry);
    if (m.hasSetupAcknowledge) v.Boolean("setupAcknowledge", m.setupAcknowledge);
    if (m.hasNotify) v.Boolean("notify", m.notify);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
