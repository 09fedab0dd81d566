// Supplementary services and service control.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"
#include "non_standard.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct Q954Details {
  uint32_t conferenceCalling;
  uint32_t threePartyService;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("conferenceCalling", m.conferenceCalling);
    v.Boolean("threePartyService", m.threePartyService);
  }
};

struct QseriesOptions {
  uint32_t q932Full;
  uint32_t q951Full;
  uint32_t q952Full;
  uint32_t q953Full;
  uint32_t q955Full;
  uint32_t q956Full;
  uint32_t q957Full;
  Q954Details q954Info;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("q932Full", m.q932Full);
    v.Boolean("q951Full", m.q951Full);
    v.Boolean("q952Full", m.q952Full);
    v.Boolean("q953Full", m.q953Full);
    v.Boolean("q955Full", m.q955Full);
    v.Boolean("q956Full", m.q956Full);
    v.Boolean("q957Full", m.q957Full);
    v.Record("q954Info", m.q954Info);
  }
};

struct CallLinkage {
  uint32_t hasGlobalCallId;
  OctetStringValue globalCallId;
  uint32_t hasThreadId;
  OctetStringValue threadId;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasGlobalCallId) WalkOctets(v, "globalCallId", m.globalCallId);
    if (m.hasThreadId) WalkOctets(v, "threadId", m.threadId);
  }
};

struct CallCreditServiceControl {
  struct BillingModeNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"credit", "debit"};
  };
  using BillingMode = NullChoice<BillingModeNames>;

  struct CallStartingPointNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"alerting", "connect"};
  };
  using CallStartingPoint = NullChoice<CallStartingPointNames>;

  uint32_t hasAmountString;
  BMPStringValue amountString;
  uint32_t hasBillingMode;
  BillingMode billingMode;
  uint32_t hasCallDurationLimit;
  uint32_t callDurationLimit;
  uint32_t hasEnforceCallDurationLimit;
  uint32_t enforceCallDurationLimit;
  uint32_t hasCallStartingPoint;
  CallStartingPoint callStartingPoint;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasAmountString) v.Characters16("amountString", m.amountString);
    if (m.hasBillingMode) v.Record("billingMode", m.billingMode);
    if (m.hasCallDurationLimit) v.Number("callDurationLimit", m.callDurationLimit);
    if (m.hasEnforceCallDurationLimit) v.Boolean("enforceCallDurationLimit", m.enforceCallDurationLimit);
    if (m.hasCallStartingPoint) v.Record("callStartingPoint", m.callStartingPoint);
  }
};

struct CallCreditCapability {
  uint32_t hasCanDisplayAmountString;
  uint32_t canDisplayAmountString;
  uint32_t hasCanEnforceDurationLimit;
  uint32_t canEnforceDurationLimit;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasCanDisplayAmountString) v.Boolean("canDisplayAmountString", m.canDisplayAmountString);
    if (m.hasCanEnforceDurationLimit) v.Boolean("canEnforceDurationLimit", m.canEnforceDurationLimit);
  }
};

struct ServiceControlDescriptor {
  uint8_t choiceTag;
  union {
    OctetStringValue url;
    OctetStringValue signal;
    NonStandardParameter nonStandard;
    CallCreditServiceControl callCreditServiceControl;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return WalkOctets(v, "url", m.url, OctetNotation::kCharacters);
      case 1: return WalkOctets(v, "signal", m.signal);
      case 2: return v.Record("nonStandard", m.nonStandard);
      case 3: return v.Record("callCreditServiceControl", m.callCreditServiceControl);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct ServiceControlSession {
  struct ReasonNames {
    static constexpr uint32_t kRoots = 3;
    static constexpr const char* kAlternatives[] = {"open", "refresh", "close"};
  };
  using Reason = NullChoice<ReasonNames>;

  uint8_t sessionId;
  uint32_t hasContents;
  ServiceControlDescriptor contents;
  Reason reason;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sessionId", m.sessionId);
    if (m.hasContents) v.Record("contents", m.contents);
    v.Record("reason", m.reason);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
