// Messages of other kinds: NSM, and XRS, which answers one that was not understood.
#pragma once

#include <stdint.h>

#include "../common/crypto_tokens.h"
#include "../common/generic_data.h"
#include "../common/non_standard.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Record("nonStandardData", m.nonStandardData);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasMessageNotUnderstood) WalkOctets(v, "messageNotUnderstood", m.messageNotUnderstood);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
