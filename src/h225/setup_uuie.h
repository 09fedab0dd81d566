// The Setup message body.
#pragma once

#include <stdint.h>

#include "../h245/open_logical_channel.h"
#include "circuits.h"
#include "crypto_tokens.h"
#include "endpoint_type.h"
#include "services.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct ScnConnectionTypeNames {
  static constexpr uint32_t kRoots = 7;
  static constexpr const char* kAlternatives[] = {"unknown",    "bChannel",   "hybrid2x64", "hybrid384",
                                                  "hybrid1536", "hybrid1920", "multirate"};
};
using ScnConnectionType = NullChoice<ScnConnectionTypeNames>;

struct ScnConnectionAggregationNames {
  static constexpr uint32_t kRoots = 6;
  static constexpr const char* kAlternatives[] = {"auto",         "none",         "h221",
                                                  "bonded-mode1", "bonded-mode2", "bonded-mode3"};
};
using ScnConnectionAggregation = NullChoice<ScnConnectionAggregationNames>;

struct SetupUUIE {
  struct ConferenceGoalNames {
    static constexpr uint32_t kRoots = 3;
    static constexpr const char* kAlternatives[] = {"create", "join", "invite", "capability-negotiation",
                                                    "callIndependentSupplementaryService"};
  };
  using ConferenceGoal = NullChoice<ConferenceGoalNames>;

  struct ConnectionParameters {
    ScnConnectionType connectionType;
    uint16_t numberOfScnConnections;
    ScnConnectionAggregation connectionAggregation;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("connectionType", m.connectionType);
      v.Number("numberOfScnConnections", m.numberOfScnConnections);
      v.Record("connectionAggregation", m.connectionAggregation);
    }
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
  GenericData* neededFeatures;
  uint32_t hasDesiredFeatures;
  uint8_t desiredFeaturesCount;
  GenericData* desiredFeatures;
  uint32_t hasSupportedFeatures;
  uint8_t supportedFeaturesCount;
  GenericData* supportedFeatures;
  uint32_t hasParallelH245Control;
  uint8_t parallelH245ControlCount;
  OctetStringValue* parallelH245Control;
  uint32_t hasAdditionalSourceAddresses;
  uint8_t additionalSourceAddressesCount;
  ExtendedAliasAddress* additionalSourceAddresses;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasH245Address) v.Record("h245Address", m.h245Address);
    if (m.hasSourceAddress) v.List("sourceAddress", Slot<AliasAddress>(&m.sourceAddress), m.sourceAddressCount);
    v.Record("sourceInfo", m.sourceInfo);
    if (m.hasDestinationAddress)
      v.List("destinationAddress", Slot<AliasAddress>(&m.destinationAddress), m.destinationAddressCount);
    if (m.hasDestCallSignalAddress) v.Record("destCallSignalAddress", m.destCallSignalAddress);
    if (m.hasDestExtraCallInfo)
      v.List("destExtraCallInfo", Slot<AliasAddress>(&m.destExtraCallInfo), m.destExtraCallInfoCount);
    if (m.hasDestExtraCRV) v.Numbers("destExtraCRV", Slot<uint16_t>(&m.destExtraCRV), m.destExtraCRVCount);
    v.Boolean("activeMC", m.activeMC);
    WalkOctets(v, "conferenceID", m.conferenceID);
    v.Record("conferenceGoal", m.conferenceGoal);
    if (m.hasCallServices) v.Record("callServices", m.callServices);
    v.Record("callType", m.callType);
    if (m.hasSourceCallSignalAddress) v.Record("sourceCallSignalAddress", m.sourceCallSignalAddress);
    if (m.hasRemoteExtensionAddress) v.Record("remoteExtensionAddress", m.remoteExtensionAddress);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasH245SecurityCapability)
      v.List("h245SecurityCapability", Slot<H245Security>(&m.h245SecurityCapability), m.h245SecurityCapabilityCount);
    if (m.hasTokens) v.List("tokens", Slot<h235::ClearToken>(&m.tokens), m.tokensCount);
    if (m.hasCryptoTokens) v.List("cryptoTokens", Slot<CryptoH323Token>(&m.cryptoTokens), m.cryptoTokensCount);
    if (m.hasFastStart) v.List("fastStart", Slot<h245::OpenLogicalChannel>(&m.fastStart), m.fastStartCount);
    if (m.hasMediaWaitForConnect) v.Boolean("mediaWaitForConnect", m.mediaWaitForConnect);
    if (m.hasCanOverlapSend) v.Boolean("canOverlapSend", m.canOverlapSend);
    if (m.hasEndpointIdentifier) v.Characters16("endpointIdentifier", m.endpointIdentifier);
    if (m.hasMultipleCalls) v.Boolean("multipleCalls", m.multipleCalls);
    if (m.hasMaintainConnection) v.Boolean("maintainConnection", m.maintainConnection);
    if (m.hasConnectionParameters) v.Record("connectionParameters", m.connectionParameters);
    if (m.hasLanguage)
      v.OctetStrings("language", Slot<OctetStringValue>(&m.language), m.languageCount, OctetNotation::kCharacters);
    if (m.hasPresentationIndicator) v.Record("presentationIndicator", m.presentationIndicator);
    if (m.hasScreeningIndicator) v.Record("screeningIndicator", m.screeningIndicator);
    if (m.hasServiceControl)
      v.List("serviceControl", Slot<ServiceControlSession>(&m.serviceControl), m.serviceControlCount);
    if (m.hasSymmetricOperationRequired) v.Null("symmetricOperationRequired");
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
    if (m.hasDesiredProtocols)
      v.List("desiredProtocols", Slot<SupportedProtocols>(&m.desiredProtocols), m.desiredProtocolsCount);
    if (m.hasNeededFeatures) v.List("neededFeatures", Slot<GenericData>(&m.neededFeatures), m.neededFeaturesCount);
    if (m.hasDesiredFeatures) v.List("desiredFeatures", Slot<GenericData>(&m.desiredFeatures), m.desiredFeaturesCount);
    if (m.hasSupportedFeatures)
      v.List("supportedFeatures", Slot<GenericData>(&m.supportedFeatures), m.supportedFeaturesCount);
    if (m.hasParallelH245Control)
      v.OctetStrings("parallelH245Control", Slot<OctetStringValue>(&m.parallelH245Control), m.parallelH245ControlCount,
                     OctetNotation::kOctets);
    if (m.hasAdditionalSourceAddresses)
      v.List("additionalSourceAddresses", Slot<ExtendedAliasAddress>(&m.additionalSourceAddresses),
             m.additionalSourceAddressesCount);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
