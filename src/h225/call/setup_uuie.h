// The Setup message body.
#pragma once

#include <stdint.h>

#include "../../h245/channels/open_logical_channel.h"
#include "../common/circuits.h"
#include "../common/crypto_tokens.h"
#include "../common/endpoint_type.h"
#include "../common/services.h"

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasH245Address) v.Record("h245Address", m.h245Address);
    if (m.hasSourceAddress) v.List("sourceAddress", KELVRA_LIST(m.sourceAddress));
    v.Record("sourceInfo", m.sourceInfo);
    if (m.hasDestinationAddress) v.List("destinationAddress", KELVRA_LIST(m.destinationAddress));
    if (m.hasDestCallSignalAddress) v.Record("destCallSignalAddress", m.destCallSignalAddress);
    if (m.hasDestExtraCallInfo) v.List("destExtraCallInfo", KELVRA_LIST(m.destExtraCallInfo));
    if (m.hasDestExtraCRV) v.Numbers("destExtraCRV", KELVRA_LIST(m.destExtraCRV));
    v.Boolean("activeMC", m.activeMC);
    WalkOctets(v, "conferenceID", m.conferenceID);
    v.Record("conferenceGoal", m.conferenceGoal);
    if (m.hasCallServices) v.Record("callServices", m.callServices);
    v.Record("callType", m.callType);
    if (m.hasSourceCallSignalAddress) v.Record("sourceCallSignalAddress", m.sourceCallSignalAddress);
    if (m.hasRemoteExtensionAddress) v.Record("remoteExtensionAddress", m.remoteExtensionAddress);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasH245SecurityCapability) v.List("h245SecurityCapability", KELVRA_LIST(m.h245SecurityCapability));
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasFastStart) v.List("fastStart", KELVRA_LIST(m.fastStart));
    if (m.hasMediaWaitForConnect) v.Boolean("mediaWaitForConnect", m.mediaWaitForConnect);
    if (m.hasCanOverlapSend) v.Boolean("canOverlapSend", m.canOverlapSend);
    if (m.hasEndpointIdentifier) v.Characters16("endpointIdentifier", m.endpointIdentifier);
    if (m.hasMultipleCalls) v.Boolean("multipleCalls", m.multipleCalls);
    if (m.hasMaintainConnection) v.Boolean("maintainConnection", m.maintainConnection);
    if (m.hasConnectionParameters) v.Record("connectionParameters", m.connectionParameters);
    if (m.hasLanguage) v.OctetStrings("language", KELVRA_LIST(m.language), OctetNotation::kCharacters);
    if (m.hasPresentationIndicator) v.Record("presentationIndicator", m.presentationIndicator);
    if (m.hasScreeningIndicator) v.Record("screeningIndicator", m.screeningIndicator);
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
    if (m.hasSymmetricOperationRequired) v.Null("symmetricOperationRequired");
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
    if (m.hasDesiredProtocols) v.List("desiredProtocols", KELVRA_LIST(m.desiredProtocols));
    if (m.hasNeededFeatures) v.List("neededFeatures", KELVRA_LIST(m.neededFeatures));
    if (m.hasDesiredFeatures) v.List("desiredFeatures", KELVRA_LIST(m.desiredFeatures));
    if (m.hasSupportedFeatures) v.List("supportedFeatures", KELVRA_LIST(m.supportedFeatures));
    if (m.hasParallelH245Control)
      v.OctetStrings("parallelH245Control", KELVRA_LIST(m.parallelH245Control), OctetNotation::kOctets);
    if (m.hasAdditionalSourceAddresses) v.List("additionalSourceAddresses", KELVRA_LIST(m.additionalSourceAddresses));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
