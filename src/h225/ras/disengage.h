// The end of a call: DRQ, DCF and DRJ.
#pragma once

#include <stdint.h>

#include "../call/release_complete_uuie.h"
#include "../common/endpoints.h"
#include "../common/services.h"
#include "../common/usage.h"
#include "private_form.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct DisengageReasonNames {
  static constexpr uint32_t kRoots = 3;
  static constexpr const char* kAlternatives[] = {"forcedDrop", "normalDrop", "undefinedReason"};
};
using DisengageReason = NullChoice<DisengageReasonNames>;

struct DisengageRejectReasonNames {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"notRegistered", "requestToDropOther", "securityDenial"};
};
using DisengageRejectReason = NullChoice<DisengageRejectReasonNames>;

struct DisengageRequest {
  uint16_t requestSeqNum;
  EndpointIdentifier endpointIdentifier;
  ConferenceIdentifier conferenceID;
  uint16_t callReferenceValue;
  DisengageReason disengageReason;
  uint32_t hasNonStandardData;
  uint8_t nonStandardDataForm;
  NonStandardParameter nonStandardData;
  uint8_t nonStandardDataPrivateForm[kPrivateFormOctets];
  uint32_t isExtended;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasGatekeeperIdentifier;
  GatekeeperIdentifier gatekeeperIdentifier;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasAnsweredCall;
  uint32_t answeredCall;
  uint32_t hasCallLinkage;
  CallLinkage callLinkage;
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;
  uint32_t hasUsageInformation;
  RasUsageInformation usageInformation;
  uint32_t hasTerminationCause;
  CallTerminationCause terminationCause;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Characters16("endpointIdentifier", m.endpointIdentifier);
    WalkOctets(v, "conferenceID", m.conferenceID);
    v.Number("callReferenceValue", m.callReferenceValue);
    v.Record("disengageReason", m.disengageReason);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasAnsweredCall) v.Boolean("answeredCall", m.answeredCall);
    if (m.hasCallLinkage) v.Record("callLinkage", m.callLinkage);
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
    if (m.hasUsageInformation) v.Record("usageInformation", m.usageInformation);
    if (m.hasTerminationCause) v.Record("terminationCause", m.terminationCause);
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct DisengageConfirm {
  uint16_t requestSeqNum;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;
  uint32_t hasUsageInformation;
  RasUsageInformation usageInformation;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
    if (m.hasUsageInformation) v.Record("usageInformation", m.usageInformation);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct DisengageReject {
  uint16_t requestSeqNum;
  DisengageRejectReason rejectReason;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t hasAltGKInfo;
  AltGKInfo altGKInfo;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Record("rejectReason", m.rejectReason);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasAltGKInfo) v.Record("altGKInfo", m.altGKInfo);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
