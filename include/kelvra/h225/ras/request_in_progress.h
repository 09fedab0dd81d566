// Request in progress: RIP.
#pragma once

#include <stdint.h>

#include "../../walk.h"
#include "../common/crypto_tokens.h"

#include "../../begin_descriptions.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct RequestInProgress {
  uint16_t requestSeqNum;
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
  uint16_t delay;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_MEMBER(delay, Integer(1, 65535));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

#pragma pack(pop)

}  // namespace kelvra::h225

#include "../../end_descriptions.h"
