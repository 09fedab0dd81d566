// The Information message body, and the one that Status, Status Inquiry, Setup Acknowledge and Notify share.
#pragma once

#include <stdint.h>

#include "../../h245/channels/open_logical_channel.h"
#include "../common/circuits.h"
#include "../common/crypto_tokens.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct InformationUUIE {
  ObjectIdentifierValue protocolIdentifier;
  uint32_t isExtended;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasFastStart;
  uint8_t fastStartCount;
  h245::OpenLogicalChannel* fastStart;
  uint32_t hasFastConnectRefused;
  uint8_t fastConnectRefused;
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasFastStart) v.List("fastStart", KELVRA_LIST(m.fastStart));
    if (m.hasFastConnectRefused) v.Null("fastConnectRefused");
    if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
  }
};

struct CallStatusUUIE {
  ObjectIdentifierValue protocolIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    v.Record("callIdentifier", m.callIdentifier);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
  }
};

using StatusUUIE = CallStatusUUIE;

using StatusInquiryUUIE = CallStatusUUIE;

using SetupAcknowledgeUUIE = CallStatusUUIE;

using NotifyUUIE = CallStatusUUIE;

#pragma pack(pop)

}  // namespace kelvra::h225
