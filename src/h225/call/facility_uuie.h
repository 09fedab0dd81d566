// The Facility message body.
#pragma once

#include <stdint.h>

#include "../../h245/channels/open_logical_channel.h"
#include "../common/circuits.h"
#include "../common/crypto_tokens.h"
#include "../common/endpoint_type.h"
#include "../common/services.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct FacilityReasonNames {
  static constexpr uint32_t kRoots = 4;
  static constexpr const char* kAlternatives[] = {"routeCallToGatekeeper",
                                                  "callForwarded",
                                                  "routeCallToMC",
                                                  "undefinedReason",
                                                  "conferenceListChoice",
                                                  "startH245",
                                                  "noH245",
                                                  "newTokens",
                                                  "featureSetUpdate",
                                                  "forwardedElements",
                                                  "transportedInformation"};
};
using FacilityReason = NullChoice<FacilityReasonNames>;

struct ConferenceList {
  uint32_t hasConferenceID;
  OctetStringValue conferenceID;
  uint32_t hasConferenceAlias;
  AliasAddress conferenceAlias;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasConferenceID) WalkOctets(v, "conferenceID", m.conferenceID);
    if (m.hasConferenceAlias) v.Record("conferenceAlias", m.conferenceAlias);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
  }
};

struct FacilityUUIE {
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasAlternativeAddress;
  TransportAddress alternativeAddress;
  uint32_t hasAlternativeAliasAddress;
  uint8_t alternativeAliasAddressCount;
  AliasAddress* alternativeAliasAddress;
  uint32_t hasConferenceID;
  OctetStringValue conferenceID;
  FacilityReason reason;
  uint32_t isExtended;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasDestExtraCallInfo;
  uint8_t destExtraCallInfoCount;
  AliasAddress* destExtraCallInfo;
  uint32_t hasRemoteExtensionAddress;
  AliasAddress remoteExtensionAddress;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasConferences;
  uint8_t conferencesCount;
  ConferenceList* conferences;
  uint32_t hasH245Address;
  TransportAddress h245Address;
  uint32_t hasFastStart;
  uint8_t fastStartCount;
  h245::OpenLogicalChannel* fastStart;
  uint32_t hasMultipleCalls;
  uint32_t multipleCalls;
  uint32_t hasMaintainConnection;
  uint32_t maintainConnection;
  uint32_t hasFastConnectRefused;
  uint8_t fastConnectRefused;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasDestinationInfo;
  EndpointType destinationInfo;
  uint32_t hasH245SecurityMode;
  H245Security h245SecurityMode;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasAlternativeAddress) v.Record("alternativeAddress", m.alternativeAddress);
    if (m.hasAlternativeAliasAddress) v.List("alternativeAliasAddress", KELVRA_LIST(m.alternativeAliasAddress));
    if (m.hasConferenceID) WalkOctets(v, "conferenceID", m.conferenceID);
    v.Record("reason", m.reason);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasDestExtraCallInfo) v.List("destExtraCallInfo", KELVRA_LIST(m.destExtraCallInfo));
    if (m.hasRemoteExtensionAddress) v.Record("remoteExtensionAddress", m.remoteExtensionAddress);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasConferences) v.List("conferences", KELVRA_LIST(m.conferences));
    if (m.hasH245Address) v.Record("h245Address", m.h245Address);
    if (m.hasFastStart) v.List("fastStart", KELVRA_LIST(m.fastStart));
    if (m.hasMultipleCalls) v.Boolean("multipleCalls", m.multipleCalls);
    if (m.hasMaintainConnection) v.Boolean("maintainConnection", m.maintainConnection);
    if (m.hasFastConnectRefused) v.Null("fastConnectRefused");
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasDestinationInfo) v.Record("destinationInfo", m.destinationInfo);
    if (m.hasH245SecurityMode) v.Record("h245SecurityMode", m.h245SecurityMode);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
