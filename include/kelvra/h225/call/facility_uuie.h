// The Facility message body.
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

KELVRA_NULL_CHOICE(NullChoice, FacilityReason, 4, "routeCallToGatekeeper", "callForwarded", "routeCallToMC",
                   "undefinedReason", "conferenceListChoice", "startH245", "noH245", "newTokens", "featureSetUpdate",
                   "forwardedElements", "transportedInformation");

struct ConferenceList {
  uint32_t hasConferenceID;
  OctetStringValue conferenceID;
  uint32_t hasConferenceAlias;
  AliasAddress conferenceAlias;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasConferenceID, conferenceID, DefinedType(OctetString(16)));
    KELVRA_OPTIONAL(hasConferenceAlias, conferenceAlias, DefinedType());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(protocolIdentifier, ProtocolIdentifier());
    KELVRA_OPTIONAL(hasAlternativeAddress, alternativeAddress, DefinedType());
    KELVRA_OPTIONAL_LIST(hasAlternativeAliasAddress, alternativeAliasAddress, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasConferenceID, conferenceID, DefinedType(OctetString(16)));
    KELVRA_MEMBER(reason, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
    KELVRA_ADDITION_LIST(hasDestExtraCallInfo, destExtraCallInfo, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasRemoteExtensionAddress, remoteExtensionAddress, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasConferences, conferences, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasH245Address, h245Address, DefinedType());
    KELVRA_ADDITION_LIST(hasFastStart, fastStart, SequenceOf(Containing()));
    KELVRA_ADDITION(hasMultipleCalls, multipleCalls, Boolean());
    KELVRA_ADDITION(hasMaintainConnection, maintainConnection, Boolean());
    KELVRA_ADDITION(hasFastConnectRefused, fastConnectRefused, Null());
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION(hasDestinationInfo, destinationInfo, DefinedType());
    KELVRA_ADDITION(hasH245SecurityMode, h245SecurityMode, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
