// Supplementary services and service control.
#pragma once

#include "non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct Q954Details {
  uint32_t conferenceCalling;
  uint32_t threePartyService;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(conferenceCalling, Boolean());
    KELVRA_MEMBER(threePartyService, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(q932Full, Boolean());
    KELVRA_MEMBER(q951Full, Boolean());
    KELVRA_MEMBER(q952Full, Boolean());
    KELVRA_MEMBER(q953Full, Boolean());
    KELVRA_MEMBER(q955Full, Boolean());
    KELVRA_MEMBER(q956Full, Boolean());
    KELVRA_MEMBER(q957Full, Boolean());
    KELVRA_MEMBER(q954Info, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CallLinkage {
  uint32_t hasGlobalCallId;
  OctetStringValue globalCallId;
  uint32_t hasThreadId;
  OctetStringValue threadId;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasGlobalCallId, globalCallId, DefinedType(OctetString(16)));
    KELVRA_OPTIONAL(hasThreadId, threadId, DefinedType(OctetString(16)));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CallCreditServiceControl {
  KELVRA_NULL_CHOICE(NullChoice, BillingMode, 2, "credit", "debit");
  KELVRA_NULL_CHOICE(NullChoice, CallStartingPoint, 2, "alerting", "connect");

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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasAmountString, amountString, BMPString(1, 512));
    KELVRA_OPTIONAL(hasBillingMode, billingMode, DefinedType());
    KELVRA_OPTIONAL(hasCallDurationLimit, callDurationLimit, Integer(1, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasEnforceCallDurationLimit, enforceCallDurationLimit, Boolean());
    KELVRA_OPTIONAL(hasCallStartingPoint, callStartingPoint, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CallCreditCapability {
  uint32_t hasCanDisplayAmountString;
  uint32_t canDisplayAmountString;
  uint32_t hasCanEnforceDurationLimit;
  uint32_t canEnforceDurationLimit;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasCanDisplayAmountString, canDisplayAmountString, Boolean());
    KELVRA_OPTIONAL(hasCanEnforceDurationLimit, canEnforceDurationLimit, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(url, IA5String(0, 512));
    KELVRA_ALTERNATIVE(signal, OctetString());
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(callCreditServiceControl, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct ServiceControlSession {
  KELVRA_NULL_CHOICE(NullChoice, Reason, 3, "open", "refresh", "close");

  uint8_t sessionId;
  uint32_t hasContents;
  ServiceControlDescriptor contents;
  Reason reason;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(sessionId, Integer(0, 255));
    KELVRA_OPTIONAL(hasContents, contents, DefinedType());
    KELVRA_MEMBER(reason, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
