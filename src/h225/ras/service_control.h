// Service control: SCI and SCR.
#pragma once

#include <stdint.h>

#include "../common/crypto_tokens.h"
#include "../common/generic_data.h"
#include "../common/identifiers.h"
#include "../common/services.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct ServiceControlIndication {
  struct CallSpecific {
    CallIdentifier callIdentifier;
    ConferenceIdentifier conferenceID;
    uint32_t answeredCall;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("callIdentifier", m.callIdentifier);
      WalkOctets(v, "conferenceID", m.conferenceID);
      v.Boolean("answeredCall", m.answeredCall);
    }
  };

  uint16_t requestSeqNum;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasEndpointIdentifier;
  EndpointIdentifier endpointIdentifier;
  uint32_t hasCallSpecific;
  CallSpecific callSpecific;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    v.List("serviceControl", KELVRA_LIST(m.serviceControl));
    if (m.hasEndpointIdentifier) v.Characters16("endpointIdentifier", m.endpointIdentifier);
    if (m.hasCallSpecific) v.Record("callSpecific", m.callSpecific);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct ServiceControlResponse {
  struct ResultNames {
    static constexpr uint32_t kRoots = 5;
    static constexpr const char* kAlternatives[] = {"started", "failed", "stopped", "notAvailable",
                                                    "neededFeatureNotSupported"};
  };
  using Result = NullChoice<ResultNames>;

  uint16_t requestSeqNum;
  uint32_t hasResult;
  Result result;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    if (m.hasResult) v.Record("result", m.result);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
