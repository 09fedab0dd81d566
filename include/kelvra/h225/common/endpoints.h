// Alternate endpoints and gatekeepers.
#pragma once

#include "circuits.h"
#include "crypto_tokens.h"
#include "endpoint_type.h"
#include "identifiers.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct AlternateTransportAddresses {
  uint32_t hasAnnexE;
  uint8_t annexECount;
  TransportAddress* annexE;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_OPTIONAL_LIST(hasAnnexE, annexE, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL_LIST(hasAliasAddress, aliasAddress, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasCallSignalAddress, callSignalAddress, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasRasAddress, rasAddress, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasEndpointType, endpointType, DefinedType());
    KELVRA_OPTIONAL_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasPriority, priority, Integer(0, 127));
    KELVRA_OPTIONAL_LIST(hasRemoteExtensionAddress, remoteExtensionAddress, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasDestExtraCallInfo, destExtraCallInfo, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasAlternateTransportAddresses, alternateTransportAddresses, DefinedType());
    KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
  KELVRA_END
};

struct AlternateGK {
  TransportAddress rasAddress;
  uint32_t hasGatekeeperIdentifier;
  GatekeeperIdentifier gatekeeperIdentifier;
  uint32_t needToRegister;
  uint8_t priority;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(rasAddress, DefinedType());
    KELVRA_OPTIONAL(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_MEMBER(needToRegister, Boolean());
    KELVRA_MEMBER(priority, Integer(0, 127));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct AltGKInfo {
  uint8_t alternateGatekeeperCount;
  AlternateGK* alternateGatekeeper;
  uint32_t altGKisPermanent;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(alternateGatekeeper, SequenceOf(DefinedType()));
    KELVRA_MEMBER(altGKisPermanent, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
