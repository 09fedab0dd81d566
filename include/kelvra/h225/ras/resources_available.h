// Availability of resources: RAI and RAC.
#pragma once

#include "../common/circuits.h"
#include "../common/crypto_tokens.h"
#include "../common/endpoint_type.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct ResourcesAvailableIndicate {
  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  EndpointIdentifier endpointIdentifier;
  uint8_t protocolsCount;
  SupportedProtocols* protocols;
  uint32_t almostOutOfResources;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t isExtended;
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(protocolIdentifier, ObjectIdentifier());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_MEMBER(endpointIdentifier, DefinedType(BMPString(1, 128)));
    // Read as an 8-bit count, not a length determinant; the two agree up to 127.
    KELVRA_MEMBER_LIST(protocols, SequenceOf(0, 254, DefinedType()));
    KELVRA_MEMBER(almostOutOfResources, Boolean());
    KELVRA_OPTIONAL_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

struct ResourcesAvailableConfirm {
  uint16_t requestSeqNum;
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t isExtended;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(protocolIdentifier, ObjectIdentifier());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
