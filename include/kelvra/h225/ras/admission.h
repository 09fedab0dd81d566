// Admission of calls: ARQ, ACF and ARJ.
#pragma once

#include "../common/addresses.h"
#include "../common/endpoints.h"
#include "../common/services.h"
#include "../common/usage.h"
#include "../common/uuies_requested.h"
#include "private_form.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

// The value of aliasesInconsistent is skipped, even if it is a list of aliases.
struct AdmissionRejectReason {
  struct PartyNumberList {
    uint8_t count;
    PartyNumber* elements;
  };

  uint8_t choiceTag;
  union {
    PartyNumberList routeCalltoSCN;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(calledPartyNotRegistered);
    KELVRA_NULL(invalidPermission);
    KELVRA_NULL(requestDenied);
    KELVRA_NULL(undefinedReason);
    KELVRA_NULL(callerNotRegistered);
    KELVRA_NULL(routeCallToGatekeeper);
    KELVRA_NULL(invalidEndpointIdentifier);
    KELVRA_NULL(resourceUnavailable);
    KELVRA_EXTENSION(isExtension);
    KELVRA_NULL(securityDenial);
    KELVRA_NULL(qosControlNotSupported);
    KELVRA_NULL(incompleteAddress);
    KELVRA_NULL(aliasesInconsistent);
    KELVRA_ALTERNATIVE(routeCalltoSCN, SequenceOf(DefinedType()));
    KELVRA_NULL(exceedsCallCapacity);
    KELVRA_NULL(collectDestination);
    KELVRA_NULL(collectPIN);
    KELVRA_NULL(genericDataReason);
    KELVRA_NULL(neededFeatureNotSupported);
  KELVRA_END
};

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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(callType, DefinedType());
    KELVRA_OPTIONAL(hasCallModel, callModel, DefinedType());
    KELVRA_MEMBER(endpointIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_OPTIONAL_LIST(hasDestinationInfo, destinationInfo, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasDestCallSignalAddress, destCallSignalAddress, DefinedType());
    KELVRA_OPTIONAL_LIST(hasDestExtraCallInfo, destExtraCallInfo, SequenceOf(DefinedType()));
    KELVRA_MEMBER_LIST(srcInfo, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasSrcCallSignalAddress, srcCallSignalAddress, DefinedType());
    KELVRA_MEMBER(bandWidth, Integer(0, kUnsigned32Maximum));
    KELVRA_MEMBER(callReferenceValue, Integer(0, 65535));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL(hasCallServices, callServices, DefinedType());
    KELVRA_MEMBER(conferenceID, DefinedType(OctetString(16)));
    KELVRA_MEMBER(activeMC, Boolean());
    KELVRA_MEMBER(answerCall, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasCanMapAlias, canMapAlias, Boolean());
    KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
    KELVRA_ADDITION_LIST(hasSrcAlternatives, srcAlternatives, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasDestAlternatives, destAlternatives, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasTransportQOS, transportQOS, DefinedType());
    KELVRA_ADDITION(hasWillSupplyUUIEs, willSupplyUUIEs, Boolean());
    KELVRA_ADDITION(hasCallLinkage, callLinkage, DefinedType());
    KELVRA_ADDITION(hasGatewayDataRate, gatewayDataRate, DefinedType());
    KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
    KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
    KELVRA_ADDITION_LIST(hasDesiredProtocols, desiredProtocols, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasDesiredTunnelledProtocol, desiredTunnelledProtocol, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(bandWidth, Integer(0, kUnsigned32Maximum));
    KELVRA_MEMBER(callModel, DefinedType());
    KELVRA_MEMBER(destCallSignalAddress, DefinedType());
    KELVRA_OPTIONAL(hasIrrFrequency, irrFrequency, Integer(1, 65535));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasDestinationInfo, destinationInfo, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasDestExtraCallInfo, destExtraCallInfo, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasDestinationType, destinationType, DefinedType());
    KELVRA_ADDITION_LIST(hasRemoteExtensionAddress, remoteExtensionAddress, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasAlternateEndpoints, alternateEndpoints, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasTransportQOS, transportQOS, DefinedType());
    KELVRA_ADDITION(hasWillRespondToIRR, willRespondToIRR, Boolean());
    KELVRA_ADDITION(hasUuiesRequested, uuiesRequested, DefinedType());
    KELVRA_ADDITION_LIST(hasLanguage, language, SequenceOf(IA5String(1, 32)));
    KELVRA_ADDITION(hasAlternateTransportAddresses, alternateTransportAddresses, DefinedType());
    KELVRA_ADDITION(hasUseSpecifiedTransport, useSpecifiedTransport, DefinedType());
    KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
    KELVRA_ADDITION_LIST(hasUsageSpec, usageSpec, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasSupportedProtocols, supportedProtocols, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasMultipleCalls, multipleCalls, Boolean());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(rejectReason, DefinedType());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasAltGKInfo, altGKInfo, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCallSignalAddress, callSignalAddress, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
