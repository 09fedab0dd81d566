// Changes of bandwidth: BRQ, BCF and BRJ.
#pragma once

#include <stdint.h>

#include "../common/bandwidth.h"
#include "../common/endpoints.h"
#include "../common/services.h"
#include "../common/usage.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct BandRejectReasonNames {
  static constexpr uint32_t kRoots = 6;
  static constexpr const char* kAlternatives[] = {
      "notBound",        "invalidConferenceID", "invalidPermission", "insufficientResources",
      "invalidRevision", "undefinedReason",     "securityDenial"};
};
using BandRejectReason = NullChoice<BandRejectReasonNames>;

struct BandwidthRequest {
  uint16_t requestSeqNum;
  EndpointIdentifier endpointIdentifier;
  ConferenceIdentifier conferenceID;
  uint16_t callReferenceValue;
  uint32_t hasCallType;
  CallType callType;
  uint32_t bandWidth;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
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
  uint32_t hasUsageInformation;
  RasUsageInformation usageInformation;
  uint32_t hasBandwidthDetails;
  uint8_t bandwidthDetailsCount;
  BandwidthDetails* bandwidthDetails;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Characters16("endpointIdentifier", m.endpointIdentifier);
    WalkOctets(v, "conferenceID", m.conferenceID);
    v.Number("callReferenceValue", m.callReferenceValue);
    if (m.hasCallType) v.Record("callType", m.callType);
    v.Number("bandWidth", m.bandWidth);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasAnsweredCall) v.Boolean("answeredCall", m.answeredCall);
    if (m.hasCallLinkage) v.Record("callLinkage", m.callLinkage);
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasUsageInformation) v.Record("usageInformation", m.usageInformation);
    if (m.hasBandwidthDetails) v.List("bandwidthDetails", KELVRA_LIST(m.bandwidthDetails));
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct BandwidthConfirm {
  uint16_t requestSeqNum;
  uint32_t bandWidth;
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
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Number("bandWidth", m.bandWidth);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct BandwidthReject {
  uint16_t requestSeqNum;
  BandRejectReason rejectReason;
  uint32_t allowedBandWidth;
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
    v.Number("allowedBandWidth", m.allowedBandWidth);
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
