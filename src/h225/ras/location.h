// Where a party is: LRQ, LCF and LRJ.
#pragma once

#include <stdint.h>

#include "../common/endpoints.h"
#include "../common/services.h"
#include "route_reject_reason.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct LocationRejectReasonNames {
  static constexpr uint32_t kRoots = 4;
  static constexpr uint32_t kRouteCalltoSCN = 2;
  static constexpr const char* kAlternatives[] = {
      "notRegistered",     "invalidPermission",         "requestDenied",    "undefinedReason",
      "securityDenial",    "aliasesInconsistent",       "routeCalltoSCN",   "resourceUnavailable",
      "genericDataReason", "neededFeatureNotSupported", "hopCountExceeded", "incompleteAddress"};
};
using LocationRejectReason = RouteRejectReason<LocationRejectReasonNames>;

struct LocationRequest {
  uint16_t requestSeqNum;
  uint32_t hasEndpointIdentifier;
  EndpointIdentifier endpointIdentifier;
  uint8_t destinationInfoCount;
  AliasAddress* destinationInfo;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  TransportAddress replyAddress;
  uint32_t isExtended;
  uint32_t hasSourceInfo;
  uint8_t sourceInfoCount;
  AliasAddress* sourceInfo;
  uint32_t hasCanMapAlias;
  uint32_t canMapAlias;
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
  uint32_t hasDesiredProtocols;
  uint8_t desiredProtocolsCount;
  SupportedProtocols* desiredProtocols;
  uint32_t hasDesiredTunnelledProtocol;
  TunnelledProtocol desiredTunnelledProtocol;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;
  uint32_t hasHopCount;
  uint8_t hopCount;
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    if (m.hasEndpointIdentifier) v.Characters16("endpointIdentifier", m.endpointIdentifier);
    v.List("destinationInfo", KELVRA_LIST(m.destinationInfo));
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    v.Record("replyAddress", m.replyAddress);
    if (m.hasSourceInfo) v.List("sourceInfo", KELVRA_LIST(m.sourceInfo));
    if (m.hasCanMapAlias) v.Boolean("canMapAlias", m.canMapAlias);
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasDesiredProtocols) v.List("desiredProtocols", KELVRA_LIST(m.desiredProtocols));
    if (m.hasDesiredTunnelledProtocol) v.Record("desiredTunnelledProtocol", m.desiredTunnelledProtocol);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
    if (m.hasHopCount) v.Number("hopCount", m.hopCount);
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
  }
};

struct LocationConfirm {
  uint16_t requestSeqNum;
  TransportAddress callSignalAddress;
  TransportAddress rasAddress;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t hasDestinationInfo;
  uint8_t destinationInfoCount;
  AliasAddress* destinationInfo;
  uint32_t hasDestExtraCallInfo;
  uint8_t destExtraCallInfoCount;
  AliasAddress* destExtraCallInfo;
  uint32_t hasDestinationType;
  EndpointType destinationType;
  uint32_t hasRemoteExtensionAddress;
  uint8_t remoteExtensionAddressCount;
  AliasAddress* remoteExtensionAddress;
  uint32_t hasAlternateEndpoints;
  uint8_t alternateEndpointsCount;
  Endpoint* alternateEndpoints;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasAlternateTransportAddresses;
  AlternateTransportAddresses alternateTransportAddresses;
  uint32_t hasSupportedProtocols;
  uint8_t supportedProtocolsCount;
  SupportedProtocols* supportedProtocols;
  uint32_t hasMultipleCalls;
  uint32_t multipleCalls;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Record("callSignalAddress", m.callSignalAddress);
    v.Record("rasAddress", m.rasAddress);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasDestinationInfo) v.List("destinationInfo", KELVRA_LIST(m.destinationInfo));
    if (m.hasDestExtraCallInfo) v.List("destExtraCallInfo", KELVRA_LIST(m.destExtraCallInfo));
    if (m.hasDestinationType) v.Record("destinationType", m.destinationType);
    if (m.hasRemoteExtensionAddress) v.List("remoteExtensionAddress", KELVRA_LIST(m.remoteExtensionAddress));
    if (m.hasAlternateEndpoints) v.List("alternateEndpoints", KELVRA_LIST(m.alternateEndpoints));
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasAlternateTransportAddresses) v.Record("alternateTransportAddresses", m.alternateTransportAddresses);
    if (m.hasSupportedProtocols) v.List("supportedProtocols", KELVRA_LIST(m.supportedProtocols));
    if (m.hasMultipleCalls) v.Boolean("multipleCalls", m.multipleCalls);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
  }
};

struct LocationReject {
  uint16_t requestSeqNum;
  LocationRejectReason rejectReason;
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
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Record("rejectReason", m.rejectReason);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasAltGKInfo) v.Record("altGKInfo", m.altGKInfo);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
