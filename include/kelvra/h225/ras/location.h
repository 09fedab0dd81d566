// Location of a party: LRQ, LCF and LRJ.
#pragma once

#include "../common/addresses.h"
#include "../common/endpoints.h"
#include "../common/services.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

// The value of aliasesInconsistent is skipped, even if it is a list of aliases.
struct LocationRejectReason {
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
    KELVRA_NULL(notRegistered);
    KELVRA_NULL(invalidPermission);
    KELVRA_NULL(requestDenied);
    KELVRA_NULL(undefinedReason);
    KELVRA_EXTENSION(isExtension);
    KELVRA_NULL(securityDenial);
    KELVRA_NULL(aliasesInconsistent);
    KELVRA_ALTERNATIVE(routeCalltoSCN, SequenceOf(DefinedType()));
    KELVRA_NULL(resourceUnavailable);
    KELVRA_NULL(genericDataReason);
    KELVRA_NULL(neededFeatureNotSupported);
    KELVRA_NULL(hopCountExceeded);
    KELVRA_NULL(incompleteAddress);
  KELVRA_END
};

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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_OPTIONAL(hasEndpointIdentifier, endpointIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_MEMBER_LIST(destinationInfo, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_MEMBER(replyAddress, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasSourceInfo, sourceInfo, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasCanMapAlias, canMapAlias, Boolean());
    KELVRA_ADDITION(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION_LIST(hasDesiredProtocols, desiredProtocols, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasDesiredTunnelledProtocol, desiredTunnelledProtocol, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasHopCount, hopCount, Integer(1, 255));
    KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(callSignalAddress, DefinedType());
    KELVRA_MEMBER(rasAddress, DefinedType());
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
    KELVRA_ADDITION(hasAlternateTransportAddresses, alternateTransportAddresses, DefinedType());
    KELVRA_ADDITION_LIST(hasSupportedProtocols, supportedProtocols, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasMultipleCalls, multipleCalls, Boolean());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(rejectReason, DefinedType());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasAltGKInfo, altGKInfo, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
