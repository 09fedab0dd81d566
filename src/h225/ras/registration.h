// Registration: RRQ, RCF and RRJ.
#pragma once

#include <stdint.h>

#include "../common/address_pattern.h"
#include "../common/endpoints.h"
#include "../common/services.h"
#include "../common/usage.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

// Version 3 sent a BOOLEAN as the tenth addition, which became `alternateTransportAddresses` in version 4.
struct RegistrationRequest {
  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t discoveryComplete;
  uint8_t callSignalAddressCount;
  TransportAddress* callSignalAddress;
  uint8_t rasAddressCount;
  TransportAddress* rasAddress;
  EndpointType terminalType;
  uint32_t hasTerminalAlias;
  uint32_t terminalAliasCount;
  AliasAddress* terminalAlias;
  uint32_t hasGatekeeperIdentifier;
  GatekeeperIdentifier gatekeeperIdentifier;
  VendorIdentifier endpointVendor;
  uint32_t isExtended;
  uint32_t hasAlternateEndpoints;
  uint8_t alternateEndpointsCount;
  Endpoint* alternateEndpoints;
  uint32_t hasTimeToLive;
  uint32_t timeToLive;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasKeepAlive;
  uint32_t keepAlive;
  uint32_t hasEndpointIdentifier;
  EndpointIdentifier endpointIdentifier;
  uint32_t hasWillSupplyUUIEs;
  uint32_t willSupplyUUIEs;
  uint32_t hasMaintainConnection;
  uint32_t maintainConnection;
  uint32_t hasVersionThreeBoolean;
  uint32_t versionThreeBoolean;
  uint32_t hasAlternateTransportAddresses;
  AlternateTransportAddresses alternateTransportAddresses;
  uint32_t hasAdditiveRegistration;
  uint8_t additiveRegistration;
  uint32_t hasTerminalAliasPattern;
  uint8_t terminalAliasPatternCount;
  AddressPattern* terminalAliasPattern;
  uint32_t hasSupportsAltGK;
  uint8_t supportsAltGK;
  uint32_t hasUsageReportingCapability;
  RasUsageInfoTypes usageReportingCapability;
  uint32_t hasMultipleCalls;
  uint32_t multipleCalls;
  uint32_t hasSupportedH248Packages;
  uint8_t supportedH248PackagesCount;
  OctetStringValue* supportedH248Packages;
  uint32_t hasCallCreditCapability;
  CallCreditCapability callCreditCapability;
  uint32_t hasCapacityReportingCapability;
  CapacityReportingCapability capacityReportingCapability;
  uint32_t hasCapacity;
  CallCapacity capacity;
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
    v.Boolean("discoveryComplete", m.discoveryComplete);
    v.List("callSignalAddress", KELVRA_LIST(m.callSignalAddress));
    v.List("rasAddress", KELVRA_LIST(m.rasAddress));
    v.Record("terminalType", m.terminalType);
    if (m.hasTerminalAlias) v.List("terminalAlias", KELVRA_LIST(m.terminalAlias));
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    v.Record("endpointVendor", m.endpointVendor);
    if (m.hasAlternateEndpoints) v.List("alternateEndpoints", KELVRA_LIST(m.alternateEndpoints));
    if (m.hasTimeToLive) v.Number("timeToLive", m.timeToLive);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasKeepAlive) v.Boolean("keepAlive", m.keepAlive);
    if (m.hasEndpointIdentifier) v.Characters16("endpointIdentifier", m.endpointIdentifier);
    if (m.hasWillSupplyUUIEs) v.Boolean("willSupplyUUIEs", m.willSupplyUUIEs);
    if (m.hasMaintainConnection) v.Boolean("maintainConnection", m.maintainConnection);
    if (m.hasVersionThreeBoolean) v.Boolean("versionThreeBoolean", m.versionThreeBoolean);
    if (m.hasAlternateTransportAddresses) v.Record("alternateTransportAddresses", m.alternateTransportAddresses);
    if (m.hasAdditiveRegistration) v.Null("additiveRegistration");
    if (m.hasTerminalAliasPattern) v.List("terminalAliasPattern", KELVRA_LIST(m.terminalAliasPattern));
    if (m.hasSupportsAltGK) v.Null("supportsAltGK");
    if (m.hasUsageReportingCapability) v.Record("usageReportingCapability", m.usageReportingCapability);
    if (m.hasMultipleCalls) v.Boolean("multipleCalls", m.multipleCalls);
    if (m.hasSupportedH248Packages)
      v.OctetStrings("supportedH248Packages", KELVRA_LIST(m.supportedH248Packages), OctetNotation::kOctets);
    if (m.hasCallCreditCapability) v.Record("callCreditCapability", m.callCreditCapability);
    if (m.hasCapacityReportingCapability) v.Record("capacityReportingCapability", m.capacityReportingCapability);
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

// What its sender means by an addition of `preGrantedARQ` depends on the version that it names, as in a
// RegistrationRequest.
struct RegistrationConfirm {
  struct PreGrantedARQ {
    uint32_t makeCall;
    uint32_t useGKCallSignalAddressToMakeCall;
    uint32_t answerCall;
    uint32_t useGKCallSignalAddressToAnswer;
    uint32_t isExtended;
    uint32_t hasIrrFrequencyInCall;
    uint16_t irrFrequencyInCall;
    uint32_t hasTotalBandwidthRestriction;
    uint32_t totalBandwidthRestriction;
    uint32_t hasVersionThreeBoolean;
    uint32_t versionThreeBoolean;
    uint32_t hasAlternateTransportAddresses;
    AlternateTransportAddresses alternateTransportAddresses;
    uint32_t hasUseSpecifiedTransport;
    UseSpecifiedTransport useSpecifiedTransport;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Boolean("makeCall", m.makeCall);
      v.Boolean("useGKCallSignalAddressToMakeCall", m.useGKCallSignalAddressToMakeCall);
      v.Boolean("answerCall", m.answerCall);
      v.Boolean("useGKCallSignalAddressToAnswer", m.useGKCallSignalAddressToAnswer);
      if (m.hasIrrFrequencyInCall) v.Number("irrFrequencyInCall", m.irrFrequencyInCall);
      if (m.hasTotalBandwidthRestriction) v.Number("totalBandwidthRestriction", m.totalBandwidthRestriction);
      if (m.hasVersionThreeBoolean) v.Boolean("versionThreeBoolean", m.versionThreeBoolean);
      if (m.hasAlternateTransportAddresses) v.Record("alternateTransportAddresses", m.alternateTransportAddresses);
      if (m.hasUseSpecifiedTransport) v.Record("useSpecifiedTransport", m.useSpecifiedTransport);
    }
  };

  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint8_t callSignalAddressCount;
  TransportAddress* callSignalAddress;
  uint32_t hasTerminalAlias;
  uint32_t terminalAliasCount;
  AliasAddress* terminalAlias;
  uint32_t hasGatekeeperIdentifier;
  GatekeeperIdentifier gatekeeperIdentifier;
  EndpointIdentifier endpointIdentifier;
  uint32_t isExtended;
  uint32_t hasAlternateGatekeeper;
  uint8_t alternateGatekeeperCount;
  AlternateGK* alternateGatekeeper;
  uint32_t hasTimeToLive;
  uint32_t timeToLive;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasWillRespondToIRR;
  uint32_t willRespondToIRR;
  uint32_t hasPreGrantedARQ;
  PreGrantedARQ preGrantedARQ;
  uint32_t hasMaintainConnection;
  uint32_t maintainConnection;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasSupportsAdditiveRegistration;
  uint8_t supportsAdditiveRegistration;
  uint32_t hasTerminalAliasPattern;
  uint8_t terminalAliasPatternCount;
  AddressPattern* terminalAliasPattern;
  uint32_t hasSupportedPrefixes;
  uint8_t supportedPrefixesCount;
  SupportedPrefix* supportedPrefixes;
  uint32_t hasUsageSpec;
  uint8_t usageSpecCount;
  RasUsageSpecification* usageSpec;
  uint32_t hasFeatureServerAlias;
  AliasAddress featureServerAlias;
  uint32_t hasCapacityReportingSpec;
  CapacityReportingSpecification capacityReportingSpec;
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
    v.List("callSignalAddress", KELVRA_LIST(m.callSignalAddress));
    if (m.hasTerminalAlias) v.List("terminalAlias", KELVRA_LIST(m.terminalAlias));
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    v.Characters16("endpointIdentifier", m.endpointIdentifier);
    if (m.hasAlternateGatekeeper) v.List("alternateGatekeeper", KELVRA_LIST(m.alternateGatekeeper));
    if (m.hasTimeToLive) v.Number("timeToLive", m.timeToLive);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasWillRespondToIRR) v.Boolean("willRespondToIRR", m.willRespondToIRR);
    if (m.hasPreGrantedARQ) v.Record("preGrantedARQ", m.preGrantedARQ);
    if (m.hasMaintainConnection) v.Boolean("maintainConnection", m.maintainConnection);
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
    if (m.hasSupportsAdditiveRegistration) v.Null("supportsAdditiveRegistration");
    if (m.hasTerminalAliasPattern) v.List("terminalAliasPattern", KELVRA_LIST(m.terminalAliasPattern));
    if (m.hasSupportedPrefixes) v.List("supportedPrefixes", KELVRA_LIST(m.supportedPrefixes));
    if (m.hasUsageSpec) v.List("usageSpec", KELVRA_LIST(m.usageSpec));
    if (m.hasFeatureServerAlias) v.Record("featureServerAlias", m.featureServerAlias);
    if (m.hasCapacityReportingSpec) v.Record("capacityReportingSpec", m.capacityReportingSpec);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct RegistrationRejectReason {
  struct DuplicateAlias {
    uint8_t count;
    AliasAddress* elements;
  };

  // The extension bit stands first in this record.
  struct InvalidTerminalAliases {
    uint32_t isExtended;
    uint32_t hasTerminalAlias;
    uint8_t terminalAliasCount;
    AliasAddress* terminalAlias;
    uint32_t hasTerminalAliasPattern;
    uint8_t terminalAliasPatternCount;
    AddressPattern* terminalAliasPattern;
    uint32_t hasSupportedPrefixes;
    uint8_t supportedPrefixesCount;
    SupportedPrefix* supportedPrefixes;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasTerminalAlias) v.List("terminalAlias", KELVRA_LIST(m.terminalAlias));
      if (m.hasTerminalAliasPattern) v.List("terminalAliasPattern", KELVRA_LIST(m.terminalAliasPattern));
      if (m.hasSupportedPrefixes) v.List("supportedPrefixes", KELVRA_LIST(m.supportedPrefixes));
    }
  };

  uint8_t choiceTag;
  union {
    DuplicateAlias duplicateAlias;
    InvalidTerminalAliases invalidTerminalAliases;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Null("transportQOSNotSupported");
        case 1: return v.Null("resourceUnavailable");
        case 2: return v.Null("invalidAlias");
        case 3: return v.Null("securityDenial");
        case 4: return v.Null("fullRegistrationRequired");
        case 5: return v.Null("additiveRegistrationNotSupported");
        case 6: return v.Record("invalidTerminalAliases", m.invalidTerminalAliases);
        case 7: return v.Null("genericDataReason");
        case 8: return v.Null("neededFeatureNotSupported");
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Null("discoveryRequired");
      case 1: return v.Null("invalidRevision");
      case 2: return v.Null("invalidCallSignalAddress");
      case 3: return v.Null("invalidRASAddress");
      case 4: return v.List("duplicateAlias", ListOf(m.duplicateAlias));
      case 5: return v.Null("invalidTerminalType");
      case 6: return v.Null("undefinedReason");
      case 7: return v.Null("transportNotSupported");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct RegistrationReject {
  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  RegistrationRejectReason rejectReason;
  uint32_t hasGatekeeperIdentifier;
  GatekeeperIdentifier gatekeeperIdentifier;
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
    v.Record("rejectReason", m.rejectReason);
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
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
