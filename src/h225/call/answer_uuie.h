// The message bodies of the answering side: Call Proceeding, Progress, Alerting and Connect.
#pragma once

#include <stdint.h>

#include "../../h245/channels/open_logical_channel.h"
#include "../common/circuits.h"
#include "../common/crypto_tokens.h"
#include "../common/endpoint_type.h"
#include "../common/services.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    v.Record("destinationInfo", m.destinationInfo);
    if (m.hasH245Address) v.Record("h245Address", m.h245Address);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasH245SecurityMode) v.Record("h245SecurityMode", m.h245SecurityMode);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasFastStart) v.List("fastStart", KELVRA_LIST(m.fastStart));
    if (m.hasMultipleCalls) v.Boolean("multipleCalls", m.multipleCalls);
    if (m.hasMaintainConnection) v.Boolean("maintainConnection", m.maintainConnection);
    if (m.hasFastConnectRefused) v.Null("fastConnectRefused");
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    v.Record("destinationInfo", m.destinationInfo);
    if (m.hasH245Address) v.Record("h245Address", m.h245Address);
    v.Record("callIdentifier", m.callIdentifier);
    if (m.hasH245SecurityMode) v.Record("h245SecurityMode", m.h245SecurityMode);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasFastStart) v.List("fastStart", KELVRA_LIST(m.fastStart));
    if (m.hasMultipleCalls) v.Boolean("multipleCalls", m.multipleCalls);
    if (m.hasMaintainConnection) v.Boolean("maintainConnection", m.maintainConnection);
    if (m.hasFastConnectRefused) v.Null("fastConnectRefused");
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    v.Record("destinationInfo", m.destinationInfo);
    if (m.hasH245Address) v.Record("h245Address", m.h245Address);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasH245SecurityMode) v.Record("h245SecurityMode", m.h245SecurityMode);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasFastStart) v.List("fastStart", KELVRA_LIST(m.fastStart));
    if (m.hasMultipleCalls) v.Boolean("multipleCalls", m.multipleCalls);
    if (m.hasMaintainConnection) v.Boolean("maintainConnection", m.maintainConnection);
    if (m.hasAlertingAddress) v.List("alertingAddress", KELVRA_LIST(m.alertingAddress));
    if (m.hasPresentationIndicator) v.Record("presentationIndicator", m.presentationIndicator);
    if (m.hasScreeningIndicator) v.Record("screeningIndicator", m.screeningIndicator);
    if (m.hasFastConnectRefused) v.Null("fastConnectRefused");
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasH245Address) v.Record("h245Address", m.h245Address);
    v.Record("destinationInfo", m.destinationInfo);
    WalkOctets(v, "conferenceID", m.conferenceID);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasH245SecurityMode) v.Record("h245SecurityMode", m.h245SecurityMode);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasFastStart) v.List("fastStart", KELVRA_LIST(m.fastStart));
    if (m.hasMultipleCalls) v.Boolean("multipleCalls", m.multipleCalls);
    if (m.hasMaintainConnection) v.Boolean("maintainConnection", m.maintainConnection);
    if (m.hasLanguage) v.OctetStrings("language", KELVRA_LIST(m.language), OctetNotation::kCharacters);
    if (m.hasConnectedAddress) v.List("connectedAddress", KELVRA_LIST(m.connectedAddress));
    if (m.hasPresentationIndicator) v.Record("presentationIndicator", m.presentationIndicator);
    if (m.hasScreeningIndicator) v.Record("screeningIndicator", m.screeningIndicator);
    if (m.hasFastConnectRefused) v.Null("fastConnectRefused");
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
