// Alternate endpoints and gatekeepers.
#pragma once

#include <stdint.h>

#include "circuits.h"
#include "crypto_tokens.h"
#include "endpoint_type.h"
#include "identifiers.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct AlternateTransportAddresses {
  uint32_t hasAnnexE;
  uint8_t annexECount;
  TransportAddress* annexE;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasAnnexE) v.List("annexE", KELVRA_LIST(m.annexE));
  }
};

struct Endpoint {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasAliasAddress;
  uint8_t aliasAddressCount;
  AliasAddress* aliasAddress;
  uint32_t hasCallSignalAddress;
  uint8_t callSignalAddressCount;
  TransportAddress* callSignalAddress;
  uint32_t hasRasAddress;
  uint8_t rasAddressCount;
  TransportAddress* rasAddress;
  uint32_t hasEndpointType;
  EndpointType endpointType;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasPriority;
  uint8_t priority;
  uint32_t hasRemoteExtensionAddress;
  uint8_t remoteExtensionAddressCount;
  AliasAddress* remoteExtensionAddress;
  uint32_t hasDestExtraCallInfo;
  uint8_t destExtraCallInfoCount;
  AliasAddress* destExtraCallInfo;
  uint32_t isExtended;
  uint32_t hasAlternateTransportAddresses;
  AlternateTransportAddresses alternateTransportAddresses;
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasAliasAddress) v.List("aliasAddress", KELVRA_LIST(m.aliasAddress));
    if (m.hasCallSignalAddress) v.List("callSignalAddress", KELVRA_LIST(m.callSignalAddress));
    if (m.hasRasAddress) v.List("rasAddress", KELVRA_LIST(m.rasAddress));
    if (m.hasEndpointType) v.Record("endpointType", m.endpointType);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasPriority) v.Number("priority", m.priority);
    if (m.hasRemoteExtensionAddress) v.List("remoteExtensionAddress", KELVRA_LIST(m.remoteExtensionAddress));
    if (m.hasDestExtraCallInfo) v.List("destExtraCallInfo", KELVRA_LIST(m.destExtraCallInfo));
    if (m.hasAlternateTransportAddresses) v.Record("alternateTransportAddresses", m.alternateTransportAddresses);
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
  }
};

struct AlternateGK {
  TransportAddress rasAddress;
  uint32_t hasGatekeeperIdentifier;
  GatekeeperIdentifier gatekeeperIdentifier;
  uint32_t needToRegister;
  uint8_t priority;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("rasAddress", m.rasAddress);
    if (m.hasGatekeeperIdentifier) v.Characters16("gatekeeperIdentifier", m.gatekeeperIdentifier);
    v.Boolean("needToRegister", m.needToRegister);
    v.Number("priority", m.priority);
  }
};

struct AltGKInfo {
  uint8_t alternateGatekeeperCount;
  AlternateGK* alternateGatekeeper;
  uint32_t altGKisPermanent;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.List("alternateGatekeeper", KELVRA_LIST(m.alternateGatekeeper));
    v.Boolean("altGKisPermanent", m.altGKisPermanent);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
