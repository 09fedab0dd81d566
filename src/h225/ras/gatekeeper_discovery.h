// Gatekeeper discovery: GRQ, GCF and GRJ.
#pragma once

#include <stdint.h>

#include "../common/endpoints.h"
#include "../common/services.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct GatekeeperRejectReasonNames {
  static constexpr uint32_t kRoots = 4;
  static constexpr const char* kAlternatives[] = {"resourceUnavailable",      "terminalExcluded", "invalidRevision",
                                                  "undefinedReason",          "securityDenial",   "genericDataReason",
                                                  "neededFeatureNotSupported"};
};
using GatekeeperRejectReason = NullChoice<GatekeeperRejectReasonNames>;

struct GatekeeperRequest {
  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  TransportAddress rasAddress;
  EndpointType endpointType;
  uint32_t hasGatekeeperIdentifier;
  BMPStringValue gatekeeperIdentifier;
  uint32_t hasCallServices;
  QseriesOptions callServices;
  uint32_t hasEndpointAlias;
  uint8_t endpointAliasCount;
  AliasAddress* endpointAlias;
  uint32_t isExtended;
  uint32_t hasAlternateEndpoints;
  uint8_t alternateEndpointsCount;
  Endpoint* alternateEndpoints;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasAuthenticationCapability;
  uint8_t authenticationCapabilityCount;
  h235::AuthenticationMechanism* authenticationCapability;
  uint32_t hasAlgorithmOIDs;
  uint8_t algorithmOIDsCount;
  ObjectIdentifierValue* algorithmOIDs;
  uint32_t hasIntegrity;
  uint8_t integrityCount;
  IntegrityMechanism* integrity;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasSupportsAltGK;
  uint8_t supportsAltGK;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    v.Record("rasAddress", m.rasAddress);
    v.Record("endpointType", m.endpointType);
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    if (m.hasCallServices) v.Record("callServices", m.callServices);
    if (m.hasEndpointAlias) v.List("endpointAlias", KELVRA_LIST(m.endpointAlias));
    if (m.hasAlternateEndpoints) v.List("alternateEndpoints", KELVRA_LIST(m.alternateEndpoints));
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasAuthenticationCapability) v.List("authenticationCapability", KELVRA_LIST(m.authenticationCapability));
    if (m.hasAlgorithmOIDs) v.ObjectIdentifiers("algorithmOIDs", KELVRA_LIST(m.algorithmOIDs));
    if (m.hasIntegrity) v.List("integrity", KELVRA_LIST(m.integrity));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasSupportsAltGK) v.Null("supportsAltGK");
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct GatekeeperConfirm {
  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasGatekeeperIdentifier;
  BMPStringValue gatekeeperIdentifier;
  TransportAddress rasAddress;
  uint32_t isExtended;
  uint32_t hasAlternateGatekeeper;
  uint8_t alternateGatekeeperCount;
  AlternateGK* alternateGatekeeper;
  uint32_t hasAuthenticationMode;
  h235::AuthenticationMechanism authenticationMode;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasAlgorithmOID;
  ObjectIdentifierValue algorithmOID;
  uint32_t hasIntegrity;
  uint8_t integrityCount;
  IntegrityMechanism* integrity;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    v.Record("rasAddress", m.rasAddress);
    if (m.hasAlternateGatekeeper) v.List("alternateGatekeeper", KELVRA_LIST(m.alternateGatekeeper));
    if (m.hasAuthenticationMode) v.Record("authenticationMode", m.authenticationMode);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasAlgorithmOID) v.ObjectIdentifier("algorithmOID", m.algorithmOID);
    if (m.hasIntegrity) v.List("integrity", KELVRA_LIST(m.integrity));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct GatekeeperReject {
  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasGatekeeperIdentifier;
  BMPStringValue gatekeeperIdentifier;
  GatekeeperRejectReason rejectReason;
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
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    v.Record("rejectReason", m.rejectReason);
    if (m.hasAltGKInfo) v.Record("altGKInfo", m.altGKInfo);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
