// The Setup message body.
#pragma once

#include "../../h245/channels/open_logical_channel.h"
#include "../common/circuits.h"
#include "../common/crypto_tokens.h"
#include "../common/endpoint_type.h"
#include "../common/protocol_identifier.h"
#include "../common/services.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

KELVRA_NULL_CHOICE(NullChoice, ScnConnectionType, 7, "unknown", "bChannel", "hybrid2x64", "hybrid384", "hybrid1536",
                   "hybrid1920", "multirate");
KELVRA_NULL_CHOICE(NullChoice, ScnConnectionAggregation, 6, "auto", "none", "h221", "bonded-mode1", "bonded-mode2",
                   "bonded-mode3");

struct SetupUUIE {
  KELVRA_NULL_CHOICE(NullChoice, ConferenceGoal, 3, "create", "join", "invite", "capability-negotiation",
                     "callIndependentSupplementaryService");

  struct ConnectionParameters {
    ScnConnectionType connectionType;
    uint16_t numberOfScnConnections;
    ScnConnectionAggregation connectionAggregation;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(connectionType, DefinedType());
      KELVRA_MEMBER(numberOfScnConnections, Integer(0, 65535));
      KELVRA_MEMBER(connectionAggregation, DefinedType());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasH245Address;
  TransportAddress h245Address;
  uint32_t hasSourceAddress;
  uint8_t sourceAddressCount;
  AliasAddress* sourceAddress;
  EndpointType sourceInfo;
  uint32_t hasDestinationAddress;
  uint8_t destinationAddressCount;
  AliasAddress* destinationAddress;
  uint32_t hasDestCallSignalAddress;
  TransportAddress destCallSignalAddress;
  uint32_t hasDestExtraCallInfo;
  uint8_t destExtraCallInfoCount;
  AliasAddress* destExtraCallInfo;
  uint32_t hasDestExtraCRV;
  uint8_t destExtraCRVCount;
  uint16_t* destExtraCRV;
  uint32_t activeMC;
  OctetStringValue conferenceID;
  ConferenceGoal conferenceGoal;
  uint32_t hasCallServices;
  QseriesOptions callServices;
  CallType callType;
  uint32_t isExtended;
  uint32_t hasSourceCallSignalAddress;
  TransportAddress sourceCallSignalAddress;
  uint32_t hasRemoteExtensionAddress;
  AliasAddress remoteExtensionAddress;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasH245SecurityCapability;
  uint8_t h245SecurityCapabilityCount;
  H245Security* h245SecurityCapability;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasFastStart;
  uint8_t fastStartCount;
  h245::OpenLogicalChannel* fastStart;
  uint32_t hasMediaWaitForConnect;
  uint32_t mediaWaitForConnect;
  uint32_t hasCanOverlapSend;
  uint32_t canOverlapSend;
  uint32_t hasEndpointIdentifier;
  BMPStringValue endpointIdentifier;
  uint32_t hasMultipleCalls;
  uint32_t multipleCalls;
  uint32_t hasMaintainConnection;
  uint32_t maintainConnection;
  uint32_t hasConnectionParameters;
  ConnectionParameters connectionParameters;
  uint32_t hasLanguage;
  uint8_t languageCount;
  OctetStringValue* language;
  uint32_t hasPresentationIndicator;
  PresentationIndicator presentationIndicator;
  uint32_t hasScreeningIndicator;
  ScreeningIndicator screeningIndicator;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasSymmetricOperationRequired;
  uint8_t symmetricOperationRequired;
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;
  uint32_t hasDesiredProtocols;
  uint8_t desiredProtocolsCount;
  SupportedProtocols* desiredProtocols;
  uint32_t hasNeededFeatures;
  uint8_t neededFeaturesCount;
  FeatureDescriptor* neededFeatures;
  uint32_t hasDesiredFeatures;
  uint8_t desiredFeaturesCount;
  FeatureDescriptor* desiredFeatures;
  uint32_t hasSupportedFeatures;
  uint8_t supportedFeaturesCount;
  FeatureDescriptor* supportedFeatures;
  uint32_t hasParallelH245Control;
  uint8_t parallelH245ControlCount;
  OctetStringValue* parallelH245Control;
  uint32_t hasAdditionalSourceAddresses;
  uint8_t additionalSourceAddressesCount;
  ExtendedAliasAddress* additionalSourceAddresses;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(protocolIdentifier, ProtocolIdentifier());
    KELVRA_OPTIONAL(hasH245Address, h245Address, DefinedType());
    KELVRA_OPTIONAL_LIST(hasSourceAddress, sourceAddress, SequenceOf(DefinedType()));
    KELVRA_MEMBER(sourceInfo, DefinedType());
    KELVRA_OPTIONAL_LIST(hasDestinationAddress, destinationAddress, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasDestCallSignalAddress, destCallSignalAddress, DefinedType());
    KELVRA_OPTIONAL_LIST(hasDestExtraCallInfo, destExtraCallInfo, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasDestExtraCRV, destExtraCRV, SequenceOf(Integer(0, 65535)));
    KELVRA_MEMBER(activeMC, Boolean());
    KELVRA_MEMBER(conferenceID, DefinedType(OctetString(16)));
    KELVRA_MEMBER(conferenceGoal, DefinedType());
    KELVRA_OPTIONAL(hasCallServices, callServices, DefinedType());
    KELVRA_MEMBER(callType, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasSourceCallSignalAddress, sourceCallSignalAddress, DefinedType());
    KELVRA_ADDITION(hasRemoteExtensionAddress, remoteExtensionAddress, DefinedType());
    KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
    KELVRA_ADDITION_LIST(hasH245SecurityCapability, h245SecurityCapability, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasFastStart, fastStart, SequenceOf(Containing()));
    KELVRA_ADDITION(hasMediaWaitForConnect, mediaWaitForConnect, Boolean());
    KELVRA_ADDITION(hasCanOverlapSend, canOverlapSend, Boolean());
    KELVRA_ADDITION(hasEndpointIdentifier, endpointIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_ADDITION(hasMultipleCalls, multipleCalls, Boolean());
    KELVRA_ADDITION(hasMaintainConnection, maintainConnection, Boolean());
    KELVRA_ADDITION(hasConnectionParameters, connectionParameters, InlineType());
    KELVRA_ADDITION_LIST(hasLanguage, language, SequenceOf(IA5String(1, 32)));
    KELVRA_ADDITION(hasPresentationIndicator, presentationIndicator, DefinedType());
    KELVRA_ADDITION(hasScreeningIndicator, screeningIndicator, DefinedType());
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasSymmetricOperationRequired, symmetricOperationRequired, Null());
    KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
    KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
    KELVRA_ADDITION_LIST(hasDesiredProtocols, desiredProtocols, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasNeededFeatures, neededFeatures, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasDesiredFeatures, desiredFeatures, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasSupportedFeatures, supportedFeatures, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasParallelH245Control, parallelH245Control, SequenceOf(ClearedOctetString()));
    KELVRA_ADDITION_LIST(hasAdditionalSourceAddresses, additionalSourceAddresses, SequenceOf(DefinedType()));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
