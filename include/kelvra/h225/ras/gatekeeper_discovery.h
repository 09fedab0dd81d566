// Gatekeeper discovery: GRQ, GCF and GRJ.
#pragma once

#include "../common/endpoints.h"
#include "../common/services.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

KELVRA_NULL_CHOICE(NullChoice, GatekeeperRejectReason, 4, "resourceUnavailable", "terminalExcluded", "invalidRevision",
                   "undefinedReason", "securityDenial", "genericDataReason", "neededFeatureNotSupported");

struct GatekeeperRequest {
  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  TransportAddress rasAddress;
  EndpointType endpointType;
  uint32_t hasGatekeeperIdentifier;
  BMPStringValue gatekeeperIdentifier;
  uint32_t hasCallServices;
  QseriesOptions callServices;
  uint32_t hasEndpointAlias;
  uint8_t endpointAliasCount;
  AliasAddress* endpointAlias;
  uint32_t isExtended;
  uint32_t hasAlternateEndpoints;
  uint8_t alternateEndpointsCount;
  Endpoint* alternateEndpoints;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasAuthenticationCapability;
  uint8_t authenticationCapabilityCount;
  h235::AuthenticationMechanism* authenticationCapability;
  uint32_t hasAlgorithmOIDs;
  uint8_t algorithmOIDsCount;
  ObjectIdentifierValue* algorithmOIDs;
  uint32_t hasIntegrity;
  uint8_t integrityCount;
  IntegrityMechanism* integrity;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasSupportsAltGK;
  uint8_t supportsAltGK;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(protocolIdentifier, ObjectIdentifier());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_MEMBER(rasAddress, DefinedType());
    KELVRA_MEMBER(endpointType, DefinedType());
    KELVRA_OPTIONAL(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_OPTIONAL(hasCallServices, callServices, DefinedType());
    KELVRA_OPTIONAL_LIST(hasEndpointAlias, endpointAlias, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasAlternateEndpoints, alternateEndpoints, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasAuthenticationCapability, authenticationCapability, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasAlgorithmOIDs, algorithmOIDs, SequenceOf(ObjectIdentifier()));
    KELVRA_ADDITION_LIST(hasIntegrity, integrity, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasSupportsAltGK, supportsAltGK, Null());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

struct GatekeeperConfirm {
  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasGatekeeperIdentifier;
  BMPStringValue gatekeeperIdentifier;
  TransportAddress rasAddress;
  uint32_t isExtended;
  uint32_t hasAlternateGatekeeper;
  uint8_t alternateGatekeeperCount;
  AlternateGK* alternateGatekeeper;
  uint32_t hasAuthenticationMode;
  h235::AuthenticationMechanism authenticationMode;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasAlgorithmOID;
  ObjectIdentifierValue algorithmOID;
  uint32_t hasIntegrity;
  uint8_t integrityCount;
  IntegrityMechanism* integrity;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(protocolIdentifier, ObjectIdentifier());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_MEMBER(rasAddress, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasAlternateGatekeeper, alternateGatekeeper, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasAuthenticationMode, authenticationMode, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasAlgorithmOID, algorithmOID, ObjectIdentifier());
    KELVRA_ADDITION_LIST(hasIntegrity, integrity, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

struct GatekeeperReject {
  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasGatekeeperIdentifier;
  BMPStringValue gatekeeperIdentifier;
  GatekeeperRejectReason rejectReason;
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(protocolIdentifier, ObjectIdentifier());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_MEMBER(rejectReason, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasAltGKInfo, altGKInfo, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
