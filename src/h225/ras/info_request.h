// A gatekeeper asks for the state of calls: IRQ.
#pragma once

#include <stdint.h>

#include "../common/crypto_tokens.h"
#include "../common/generic_data.h"
#include "../common/services.h"
#include "../common/usage.h"
#include "../common/uuies_requested.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Number("callReferenceValue", m.callReferenceValue);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasReplyAddress) v.Record("replyAddress", m.replyAddress);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasUuiesRequested) v.Record("uuiesRequested", m.uuiesRequested);
    if (m.hasCallLinkage) v.Record("callLinkage", m.callLinkage);
    if (m.hasUsageInfoRequested) v.Record("usageInfoRequested", m.usageInfoRequested);
    if (m.hasSegmentedResponseSupported) v.Null("segmentedResponseSupported");
    if (m.hasNextSegmentRequested) v.Number("nextSegmentRequested", m.nextSegmentRequested);
    if (m.hasCapacityInfoRequested) v.Null("capacityInfoRequested");
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
