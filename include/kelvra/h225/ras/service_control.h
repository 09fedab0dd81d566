// Service control: SCI and SCR.
#pragma once

#include "../common/crypto_tokens.h"
#include "../common/generic_data.h"
#include "../common/identifiers.h"
#include "../common/services.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct ServiceControlIndication {
  struct CallSpecific {
    CallIdentifier callIdentifier;
    ConferenceIdentifier conferenceID;
    uint32_t answeredCall;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(callIdentifier, DefinedType());
      KELVRA_MEMBER(conferenceID, DefinedType(OctetString(16)));
      KELVRA_MEMBER(answeredCall, Boolean());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint16_t requestSeqNum;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasEndpointIdentifier;
  EndpointIdentifier endpointIdentifier;
  uint32_t hasCallSpecific;
  CallSpecific callSpecific;
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
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_MEMBER_LIST(serviceControl, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasEndpointIdentifier, endpointIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_OPTIONAL(hasCallSpecific, callSpecific, InlineType());
    KELVRA_OPTIONAL_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_OPTIONAL(hasFeatureSet, featureSet, DefinedType());
    KELVRA_OPTIONAL_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct ServiceControlResponse {
  KELVRA_NULL_CHOICE(NullChoice, Result, 5, "started", "failed", "stopped", "notAvailable",
                     "neededFeatureNotSupported");

  uint16_t requestSeqNum;
  uint32_t hasResult;
  Result result;
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
  uint32_t hasFeatureSet;
  FeatureSet featureSet;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_OPTIONAL(hasResult, result, DefinedType());
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_OPTIONAL(hasFeatureSet, featureSet, DefinedType());
    KELVRA_OPTIONAL_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
