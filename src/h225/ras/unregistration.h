// Unregistration: URQ, UCF and URJ.
#pragma once

#include <stdint.h>

#include "../common/address_pattern.h"
#include "../common/endpoints.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct UnregRequestReasonNames {
  static constexpr uint32_t kRoots = 4;
  static constexpr const char* kAlternatives[] = {"reregistrationRequired", "ttlExpired", "securityDenial",
                                                  "undefinedReason", "maintenance"};
};
using UnregRequestReason = NullChoice<UnregRequestReasonNames>;

struct UnregRejectReasonNames {
  static constexpr uint32_t kRoots = 3;
  static constexpr const char* kAlternatives[] = {"notCurrentlyRegistered", "callInProgress", "undefinedReason",
                                                  "permissionDenied", "securityDenial"};
};
using UnregRejectReason = NullChoice<UnregRejectReasonNames>;

struct UnregistrationRequest {
  uint16_t requestSeqNum;
  uint8_t callSignalAddressCount;
  TransportAddress* callSignalAddress;
  uint32_t hasEndpointAlias;
  uint8_t endpointAliasCount;
  AliasAddress* endpointAlias;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasEndpointIdentifier;
  EndpointIdentifier endpointIdentifier;
  uint32_t isExtended;
  uint32_t hasAlternateEndpoints;
  uint8_t alternateEndpointsCount;
  Endpoint* alternateEndpoints;
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
  uint32_t hasReason;
  UnregRequestReason reason;
  uint32_t hasEndpointAliasPattern;
  uint8_t endpointAliasPatternCount;
  AddressPattern* endpointAliasPattern;
  uint32_t hasSupportedPrefixes;
  uint8_t supportedPrefixesCount;
  SupportedPrefix* supportedPrefixes;
  uint32_t hasAlternateGatekeeper;
  uint8_t alternateGatekeeperCount;
  AlternateGK* alternateGatekeeper;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.List("callSignalAddress", KELVRA_LIST(m.callSignalAddress));
    if (m.hasEndpointAlias) v.List("endpointAlias", KELVRA_LIST(m.endpointAlias));
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasEndpointIdentifier) v.Characters16("endpointIdentifier", m.endpointIdentifier);
    if (m.hasAlternateEndpoints) v.List("alternateEndpoints", KELVRA_LIST(m.alternateEndpoints));
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasReason) v.Record("reason", m.reason);
    if (m.hasEndpointAliasPattern) v.List("endpointAliasPattern", KELVRA_LIST(m.endpointAliasPattern));
    if (m.hasSupportedPrefixes) v.List("supportedPrefixes", KELVRA_LIST(m.supportedPrefixes));
    if (m.hasAlternateGatekeeper) v.List("alternateGatekeeper", KELVRA_LIST(m.alternateGatekeeper));
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct UnregistrationConfirm {
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
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct UnregistrationReject {
  uint16_t requestSeqNum;
  UnregRejectReason rejectReason;
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
