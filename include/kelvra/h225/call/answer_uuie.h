// The message bodies of the answering side: Call Proceeding, Progress, Alerting and Connect.
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

struct CallProceedingUUIE {
  ObjectIdentifierValue protocolIdentifier;
  EndpointType destinationInfo;
  uint32_t hasH245Address;
  TransportAddress h245Address;
  uint32_t isExtended;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasH245SecurityMode;
  H245Security h245SecurityMode;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasFastStart;
  uint8_t fastStartCount;
  h245::OpenLogicalChannel* fastStart;
  uint32_t hasMultipleCalls;
  uint32_t multipleCalls;
  uint32_t hasMaintainConnection;
  uint32_t maintainConnection;
  uint32_t hasFastConnectRefused;
  uint8_t fastConnectRefused;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(protocolIdentifier, ProtocolIdentifier());
    KELVRA_MEMBER(destinationInfo, DefinedType());
    KELVRA_OPTIONAL(hasH245Address, h245Address, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
    KELVRA_ADDITION(hasH245SecurityMode, h245SecurityMode, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasFastStart, fastStart, SequenceOf(Containing()));
    KELVRA_ADDITION(hasMultipleCalls, multipleCalls, Boolean());
    KELVRA_ADDITION(hasMaintainConnection, maintainConnection, Boolean());
    KELVRA_ADDITION(hasFastConnectRefused, fastConnectRefused, Null());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
  KELVRA_END
};

struct ProgressUUIE {
  ObjectIdentifierValue protocolIdentifier;
  EndpointType destinationInfo;
  uint32_t hasH245Address;
  TransportAddress h245Address;
  CallIdentifier callIdentifier;
  uint32_t hasH245SecurityMode;
  H245Security h245SecurityMode;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasFastStart;
  uint8_t fastStartCount;
  h245::OpenLogicalChannel* fastStart;
  uint32_t isExtended;
  uint32_t hasMultipleCalls;
  uint32_t multipleCalls;
  uint32_t hasMaintainConnection;
  uint32_t maintainConnection;
  uint32_t hasFastConnectRefused;
  uint8_t fastConnectRefused;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(protocolIdentifier, ProtocolIdentifier());
    KELVRA_MEMBER(destinationInfo, DefinedType());
    KELVRA_OPTIONAL(hasH245Address, h245Address, DefinedType());
    KELVRA_MEMBER(callIdentifier, DefinedType());
    KELVRA_OPTIONAL(hasH245SecurityMode, h245SecurityMode, DefinedType());
    KELVRA_OPTIONAL_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasFastStart, fastStart, SequenceOf(Containing()));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasMultipleCalls, multipleCalls, Boolean());
    KELVRA_ADDITION(hasMaintainConnection, maintainConnection, Boolean());
    KELVRA_ADDITION(hasFastConnectRefused, fastConnectRefused, Null());
  KELVRA_END
};

struct AlertingUUIE {
  ObjectIdentifierValue protocolIdentifier;
  EndpointType destinationInfo;
  uint32_t hasH245Address;
  TransportAddress h245Address;
  uint32_t isExtended;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasH245SecurityMode;
  H245Security h245SecurityMode;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasFastStart;
  uint8_t fastStartCount;
  h245::OpenLogicalChannel* fastStart;
  uint32_t hasMultipleCalls;
  uint32_t multipleCalls;
  uint32_t hasMaintainConnection;
  uint32_t maintainConnection;
  uint32_t hasAlertingAddress;
  uint8_t alertingAddressCount;
  AliasAddress* alertingAddress;
  uint32_t hasPresentationIndicator;
  PresentationIndicator presentationIndicator;
  uint32_t hasScreeningIndicator;
  ScreeningIndicator screeningIndicator;
  uint32_t hasFastConnectRefused;
  uint8_t fastConnectRefused;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(protocolIdentifier, ProtocolIdentifier());
    KELVRA_MEMBER(destinationInfo, DefinedType());
    KELVRA_OPTIONAL(hasH245Address, h245Address, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
    KELVRA_ADDITION(hasH245SecurityMode, h245SecurityMode, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasFastStart, fastStart, SequenceOf(Containing()));
    KELVRA_ADDITION(hasMultipleCalls, multipleCalls, Boolean());
    KELVRA_ADDITION(hasMaintainConnection, maintainConnection, Boolean());
    KELVRA_ADDITION_LIST(hasAlertingAddress, alertingAddress, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasPresentationIndicator, presentationIndicator, DefinedType());
    KELVRA_ADDITION(hasScreeningIndicator, screeningIndicator, DefinedType());
    KELVRA_ADDITION(hasFastConnectRefused, fastConnectRefused, Null());
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
  KELVRA_END
};

struct ConnectUUIE {
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasH245Address;
  TransportAddress h245Address;
  EndpointType destinationInfo;
  OctetStringValue conferenceID;
  uint32_t isExtended;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasH245SecurityMode;
  H245Security h245SecurityMode;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasFastStart;
  uint8_t fastStartCount;
  h245::OpenLogicalChannel* fastStart;
  uint32_t hasMultipleCalls;
  uint32_t multipleCalls;
  uint32_t hasMaintainConnection;
  uint32_t maintainConnection;
  uint32_t hasLanguage;
  uint8_t languageCount;
  OctetStringValue* language;
  uint32_t hasConnectedAddress;
  uint8_t connectedAddressCount;
  AliasAddress* connectedAddress;
  uint32_t hasPresentationIndicator;
  PresentationIndicator presentationIndicator;
  uint32_t hasScreeningIndicator;
  ScreeningIndicator screeningIndicator;
  uint32_t hasFastConnectRefused;
  uint8_t fastConnectRefused;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(protocolIdentifier, ProtocolIdentifier());
    KELVRA_OPTIONAL(hasH245Address, h245Address, DefinedType());
    KELVRA_MEMBER(destinationInfo, DefinedType());
    KELVRA_MEMBER(conferenceID, DefinedType(OctetString(16)));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
    KELVRA_ADDITION(hasH245SecurityMode, h245SecurityMode, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasFastStart, fastStart, SequenceOf(Containing()));
    KELVRA_ADDITION(hasMultipleCalls, multipleCalls, Boolean());
    // The presence bit of multipleCalls decides whether this is read. If the two bits differ, this addition and those
    // after it are read from the open type of a neighbour.
    KELVRA_ADDITION(hasMaintainConnection, maintainConnection, GatedBy(KELVRA_PLACE(hasMultipleCalls), Boolean()));
    KELVRA_ADDITION_LIST(hasLanguage, language, SequenceOf(IA5String(1, 32)));
    KELVRA_ADDITION_LIST(hasConnectedAddress, connectedAddress, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasPresentationIndicator, presentationIndicator, DefinedType());
    KELVRA_ADDITION(hasScreeningIndicator, screeningIndicator, DefinedType());
    KELVRA_ADDITION(hasFastConnectRefused, fastConnectRefused, Null());
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
