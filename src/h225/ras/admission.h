// Leave to make or take a call: ARQ, ACF and ARJ.
#pragma once

#include <stdint.h>

#include "../common/endpoints.h"
#include "../common/services.h"
#include "../common/usage.h"
#include "../common/uuies_requested.h"
#include "private_form.h"
#include "route_reject_reason.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct AdmissionRejectReasonNames {
  static constexpr uint32_t kRoots = 8;
  static constexpr uint32_t kRouteCalltoSCN = 4;
  static constexpr const char* kAlternatives[] = {"calledPartyNotRegistered",
                                                  "invalidPermission",
                                                  "requestDenied",
                                                  "undefinedReason",
                                                  "callerNotRegistered",
                                                  "routeCallToGatekeeper",
                                                  "invalidEndpointIdentifier",
                                                  "resourceUnavailable",
                                                  "securityDenial",
                                                  "qosControlNotSupported",
                                                  "incompleteAddress",
                                                  "aliasesInconsistent",
                                                  "routeCalltoSCN",
                                                  "exceedsCallCapacity",
                                                  "collectDestination",
                                                  "collectPIN",
                                                  "genericDataReason",
                                                  "neededFeatureNotSupported"};
};
using AdmissionRejectReason = RouteRejectReason<AdmissionRejectReasonNames>;

struct AdmissionRequest {
  uint16_t requestSeqNum;
  CallType callType;
  uint32_t hasCallModel;
  CallModel callModel;
  EndpointIdentifier endpointIdentifier;
  uint32_t hasDestinationInfo;
  uint8_t destinationInfoCount;
  AliasAddress* destinationInfo;
  uint32_t hasDestCallSignalAddress;
  TransportAddress destCallSignalAddress;
  uint32_t hasDestExtraCallInfo;
  uint8_t destExtraCallInfoCount;
  AliasAddress* destExtraCallInfo;
  uint8_t srcInfoCount;
  AliasAddress* srcInfo;
  uint32_t hasSrcCallSignalAddress;
  TransportAddress srcCallSignalAddress;
  uint32_t bandWidth;
  uint16_t callReferenceValue;
  uint32_t hasNonStandardData;
  uint8_t nonStandardDataForm;
  NonStandardParameter nonStandardData;
  uint8_t nonStandardDataPrivateForm[kPrivateFormOctets];
  uint32_t hasCallServices;
  QseriesOptions callServices;
  ConferenceIdentifier conferenceID;
  uint32_t activeMC;
  uint32_t answerCall;
  uint32_t isExtended;
  uint32_t hasCanMapAlias;
  uint32_t canMapAlias;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasSrcAlternatives;
  uint8_t srcAlternativesCount;
  Endpoint* srcAlternatives;
  uint32_t hasDestAlternatives;
  uint8_t destAlternativesCount;
  Endpoint* destAlternatives;
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
  uint32_t hasTransportQOS;
  TransportQOS transportQOS;
  uint32_t hasWillSupplyUUIEs;
  uint32_t willSupplyUUIEs;
  uint32_t hasCallLinkage;
  CallLinkage callLinkage;
  uint32_t hasGatewayDataRate;
  DataRate gatewayDataRate;
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Record("callType", m.callType);
    if (m.hasCallModel) v.Record("callModel", m.callModel);
    v.Characters16("endpointIdentifier", m.endpointIdentifier);
    if (m.hasDestinationInfo) v.List("destinationInfo", KELVRA_LIST(m.destinationInfo));
    if (m.hasDestCallSignalAddress) v.Record("destCallSignalAddress", m.destCallSignalAddress);
    if (m.hasDestExtraCallInfo) v.List("destExtraCallInfo", KELVRA_LIST(m.destExtraCallInfo));
    v.List("srcInfo", KELVRA_LIST(m.srcInfo));
    if (m.hasSrcCallSignalAddress) v.Record("srcCallSignalAddress", m.srcCallSignalAddress);
    v.Number("bandWidth", m.bandWidth);
    v.Number("callReferenceValue", m.callReferenceValue);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasCallServices) v.Record("callServices", m.callServices);
    WalkOctets(v, "conferenceID", m.conferenceID);
    v.Boolean("activeMC", m.activeMC);
    v.Boolean("answerCall", m.answerCall);
    if (m.hasCanMapAlias) v.Boolean("canMapAlias", m.canMapAlias);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasSrcAlternatives) v.List("srcAlternatives", KELVRA_LIST(m.srcAlternatives));
    if (m.hasDestAlternatives) v.List("destAlternatives", KELVRA_LIST(m.destAlternatives));
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasTransportQOS) v.Record("transportQOS", m.transportQOS);
    if (m.hasWillSupplyUUIEs) v.Boolean("willSupplyUUIEs", m.willSupplyUUIEs);
    if (m.hasCallLinkage) v.Record("callLinkage", m.callLinkage);
    if (m.hasGatewayDataRate) v.Record("gatewayDataRate", m.gatewayDataRate);
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
    if (m.hasDesiredProtocols) v.List("desiredProtocols", KELVRA_LIST(m.desiredProtocols));
    if (m.hasDesiredTunnelledProtocol) v.Record("desiredTunnelledProtocol", m.desiredTunnelledProtocol);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct AdmissionConfirm {
  uint16_t requestSeqNum;
  uint32_t bandWidth;
  CallModel callModel;
  TransportAddress destCallSignalAddress;
  uint32_t hasIrrFrequency;
  uint16_t irrFrequency;
  uint32_t hasNonStandardData;
  uint8_t nonStandardDataForm;
  NonStandardParameter nonStandardData;
  uint8_t nonStandardDataPrivateForm[kPrivateFormOctets];
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
  uint32_t hasTransportQOS;
  TransportQOS transportQOS;
  uint32_t hasWillRespondToIRR;
  uint32_t willRespondToIRR;
  uint32_t hasUuiesRequested;
  UUIEsRequested uuiesRequested;
  uint32_t hasLanguage;
  uint8_t languageCount;
  OctetStringValue* language;
  uint32_t hasAlternateTransportAddresses;
  AlternateTransportAddresses alternateTransportAddresses;
  uint32_t hasUseSpecifiedTransport;
  UseSpecifiedTransport useSpecifiedTransport;
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;
  uint32_t hasUsageSpec;
  uint8_t usageSpecCount;
  RasUsageSpecification* usageSpec;
  uint32_t hasSupportedProtocols;
  uint8_t supportedProtocolsCount;
  SupportedProtocols* supportedProtocols;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasMultipleCalls;
  uint32_t multipleCalls;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Number("bandWidth", m.bandWidth);
    v.Record("callModel", m.callModel);
    v.Record("destCallSignalAddress", m.destCallSignalAddress);
    if (m.hasIrrFrequency) v.Number("irrFrequency", m.irrFrequency);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasDestinationInfo) v.List("destinationInfo", KELVRA_LIST(m.destinationInfo));
    if (m.hasDestExtraCallInfo) v.List("destExtraCallInfo", KELVRA_LIST(m.destExtraCallInfo));
    if (m.hasDestinationType) v.Record("destinationType", m.destinationType);
    if (m.hasRemoteExtensionAddress) v.List("remoteExtensionAddress", KELVRA_LIST(m.remoteExtensionAddress));
    if (m.hasAlternateEndpoints) v.List("alternateEndpoints", KELVRA_LIST(m.alternateEndpoints));
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasTransportQOS) v.Record("transportQOS", m.transportQOS);
    if (m.hasWillRespondToIRR) v.Boolean("willRespondToIRR", m.willRespondToIRR);
    if (m.hasUuiesRequested) v.Record("uuiesRequested", m.uuiesRequested);
    if (m.hasLanguage) v.OctetStrings("language", KELVRA_LIST(m.language), OctetNotation::kCharacters);
    if (m.hasAlternateTransportAddresses) v.Record("alternateTransportAddresses", m.alternateTransportAddresses);
    if (m.hasUseSpecifiedTransport) v.Record("useSpecifiedTransport", m.useSpecifiedTransport);
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
    if (m.hasUsageSpec) v.List("usageSpec", KELVRA_LIST(m.usageSpec));
    if (m.hasSupportedProtocols) v.List("supportedProtocols", KELVRA_LIST(m.supportedProtocols));
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
    if (m.hasMultipleCalls) v.Boolean("multipleCalls", m.multipleCalls);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct AdmissionReject {
  uint16_t requestSeqNum;
  AdmissionRejectReason rejectReason;
  uint32_t hasNonStandardData;
  uint8_t nonStandardDataForm;
  NonStandardParameter nonStandardData;
  uint8_t nonStandardDataPrivateForm[kPrivateFormOctets];
  uint32_t isExtended;
  uint32_t hasAltGKInfo;
  AltGKInfo altGKInfo;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasCallSignalAddress;
  uint8_t callSignalAddressCount;
  TransportAddress* callSignalAddress;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
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
    if (m.hasCallSignalAddress) v.List("callSignalAddress", KELVRA_LIST(m.callSignalAddress));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
