// A gatekeeper's request for the state of calls: IRQ.
#pragma once

#include "../common/crypto_tokens.h"
#include "../common/generic_data.h"
#include "../common/services.h"
#include "../common/usage.h"
#include "../common/uuies_requested.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct InfoRequest {
  uint16_t requestSeqNum;
  uint16_t callReferenceValue;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasReplyAddress;
  TransportAddress replyAddress;
  uint32_t isExtended;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasUuiesRequested;
  UUIEsRequested uuiesRequested;
  uint32_t hasCallLinkage;
  CallLinkage callLinkage;
  uint32_t hasUsageInfoRequested;
  RasUsageInfoTypes usageInfoRequested;
  uint32_t hasSegmentedResponseSupported;
  uint8_t segmentedResponseSupported;
  uint32_t hasNextSegmentRequested;
  uint16_t nextSegmentRequested;
  uint32_t hasCapacityInfoRequested;
  uint8_t capacityInfoRequested;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(callReferenceValue, Integer(0, 65535));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL(hasReplyAddress, replyAddress, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasUuiesRequested, uuiesRequested, DefinedType());
    KELVRA_ADDITION(hasCallLinkage, callLinkage, DefinedType());
    KELVRA_ADDITION(hasUsageInfoRequested, usageInfoRequested, DefinedType());
    KELVRA_ADDITION(hasSegmentedResponseSupported, segmentedResponseSupported, Null());
    KELVRA_ADDITION(hasNextSegmentRequested, nextSegmentRequested, Integer(0, 65535));
    KELVRA_ADDITION(hasCapacityInfoRequested, capacityInfoRequested, Null());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
