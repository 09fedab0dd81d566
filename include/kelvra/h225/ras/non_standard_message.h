// Other messages: NSM, and XRS, which answers a message that was not understood.
#pragma once

#include "../common/crypto_tokens.h"
#include "../common/generic_data.h"
#include "../common/non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct NonStandardMessage {
  uint16_t requestSeqNum;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
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
    KELVRA_MEMBER(nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

struct UnknownMessageResponse {
  uint16_t requestSeqNum;
  uint32_t isExtended;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasMessageNotUnderstood;
  OctetStringValue messageNotUnderstood;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasMessageNotUnderstood, messageNotUnderstood, ClearedOctetString());
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
