// Registration: RRQ, RCF and RRJ.
#pragma once

#include "../common/address_pattern.h"
#include "../common/endpoints.h"
#include "../common/protocol_identifier.h"
#include "../common/services.h"
#include "../common/usage.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

// In version 3 the tenth addition is a BOOLEAN; in version 4 it is `alternateTransportAddresses`.
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(protocolIdentifier, RegistrationProtocolIdentifier());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_MEMBER(discoveryComplete, Boolean());
    KELVRA_MEMBER_LIST(callSignalAddress, SequenceOf(DefinedType()));
    KELVRA_MEMBER_LIST(rasAddress, SequenceOf(DefinedType()));
    KELVRA_MEMBER(terminalType, DefinedType());
    KELVRA_OPTIONAL_LIST(hasTerminalAlias, terminalAlias, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_MEMBER(endpointVendor, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasAlternateEndpoints, alternateEndpoints, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasTimeToLive, timeToLive, Integer(1, kUnsigned32Maximum));
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasKeepAlive, keepAlive, Boolean());
    KELVRA_ADDITION(hasEndpointIdentifier, endpointIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_ADDITION(hasWillSupplyUUIEs, willSupplyUUIEs, Boolean());
    if (KELVRA_VERSIONS(3, 4)) {
      KELVRA_ADDITION(hasMaintainConnection, maintainConnection, Boolean());
    }
    if (KELVRA_VERSIONS(3, 3)) {
      KELVRA_ADDITION(hasVersionThreeBoolean, versionThreeBoolean, Boolean());
    }
    if (KELVRA_VERSIONS(4, 4)) {
      KELVRA_ADDITION(hasAlternateTransportAddresses, alternateTransportAddresses, DefinedType());
      KELVRA_ADDITION(hasAdditiveRegistration, additiveRegistration, Null());
      KELVRA_ADDITION_LIST(hasTerminalAliasPattern, terminalAliasPattern, SequenceOf(DefinedType()));
      KELVRA_ADDITION(hasSupportsAltGK, supportsAltGK, Null());
      KELVRA_ADDITION(hasUsageReportingCapability, usageReportingCapability, DefinedType());
      KELVRA_ADDITION(hasMultipleCalls, multipleCalls, Boolean());
      KELVRA_ADDITION_LIST(hasSupportedH248Packages, supportedH248Packages, SequenceOf(ClearedOctetString()));
      KELVRA_ADDITION(hasCallCreditCapability, callCreditCapability, DefinedType());
      KELVRA_ADDITION(hasCapacityReportingCapability, capacityReportingCapability, DefinedType());
      KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
      KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
      KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
    }
  KELVRA_END
};

// The meaning of an addition of `preGrantedARQ` depends on the sender's version, as in a RegistrationRequest.
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

    KELVRA_SEQUENCE
      KELVRA_MEMBER(makeCall, Boolean());
      KELVRA_MEMBER(useGKCallSignalAddressToMakeCall, Boolean());
      KELVRA_MEMBER(answerCall, Boolean());
      KELVRA_MEMBER(useGKCallSignalAddressToAnswer, Boolean());
      KELVRA_EXTENSION(isExtended);
      KELVRA_ADDITION(hasIrrFrequencyInCall, irrFrequencyInCall, Integer(1, 65535));
      KELVRA_ADDITION(hasTotalBandwidthRestriction, totalBandwidthRestriction, Integer(0, kUnsigned32Maximum));
      if (KELVRA_VERSIONS(3, 3)) {
        KELVRA_ADDITION(hasVersionThreeBoolean, versionThreeBoolean, Boolean());
      }
      if (KELVRA_VERSIONS(4, 4)) {
        KELVRA_ADDITION(hasAlternateTransportAddresses, alternateTransportAddresses, DefinedType());
        KELVRA_ADDITION(hasUseSpecifiedTransport, useSpecifiedTransport, DefinedType());
      }
    KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(protocolIdentifier, RegistrationProtocolIdentifier());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_MEMBER_LIST(callSignalAddress, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasTerminalAlias, terminalAlias, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_MEMBER(endpointIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasAlternateGatekeeper, alternateGatekeeper, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasTimeToLive, timeToLive, Integer(1, kUnsigned32Maximum));
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasWillRespondToIRR, willRespondToIRR, Boolean());
    // The only inline SEQUENCE that fails if nothing is left on entry.
    KELVRA_ADDITION(hasPreGrantedARQ, preGrantedARQ, DefinedType(InlineType()));
    KELVRA_ADDITION(hasMaintainConnection, maintainConnection, Boolean());
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasSupportsAdditiveRegistration, supportsAdditiveRegistration, Null());
    KELVRA_ADDITION_LIST(hasTerminalAliasPattern, terminalAliasPattern, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasSupportedPrefixes, supportedPrefixes, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasUsageSpec, usageSpec, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasFeatureServerAlias, featureServerAlias, DefinedType());
    KELVRA_ADDITION(hasCapacityReportingSpec, capacityReportingSpec, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

struct RegistrationRejectReason {
  struct DuplicateAlias {
    uint8_t count;
    AliasAddress* elements;
  };

  // In this record the extension bit comes first.
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

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL_LIST(hasTerminalAlias, terminalAlias, SequenceOf(DefinedType()));
      KELVRA_OPTIONAL_LIST(hasTerminalAliasPattern, terminalAliasPattern, SequenceOf(DefinedType()));
      KELVRA_OPTIONAL_LIST(hasSupportedPrefixes, supportedPrefixes, SequenceOf(DefinedType()));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint8_t choiceTag;
  union {
    DuplicateAlias duplicateAlias;
    InvalidTerminalAliases invalidTerminalAliases;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(discoveryRequired);
    KELVRA_NULL(invalidRevision);
    KELVRA_NULL(invalidCallSignalAddress);
    KELVRA_NULL(invalidRASAddress);
    KELVRA_ALTERNATIVE(duplicateAlias, SequenceOf(DefinedType()));
    KELVRA_NULL(invalidTerminalType);
    KELVRA_NULL(undefinedReason);
    KELVRA_NULL(transportNotSupported);
    KELVRA_EXTENSION(isExtension);
    KELVRA_NULL(transportQOSNotSupported);
    KELVRA_NULL(resourceUnavailable);
    KELVRA_NULL(invalidAlias);
    KELVRA_NULL(securityDenial);
    KELVRA_NULL(fullRegistrationRequired);
    KELVRA_NULL(additiveRegistrationNotSupported);
    KELVRA_ALTERNATIVE(invalidTerminalAliases, InlineType());
    KELVRA_NULL(genericDataReason);
    KELVRA_NULL(neededFeatureNotSupported);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(protocolIdentifier, ObjectIdentifier());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_MEMBER(rejectReason, DefinedType());
    KELVRA_OPTIONAL(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasAltGKInfo, altGKInfo, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
