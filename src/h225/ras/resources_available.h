// Availability of resources: RAI and RAC.
#pragma once

#include <stdint.h>

#include "../common/circuits.h"
#include "../common/crypto_tokens.h"
#include "../common/endpoint_type.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    v.Characters16("endpointIdentifier", m.endpointIdentifier);
    v.List("protocols", KELVRA_LIST(m.protocols));
    v.Boolean("almostOutOfResources", m.almostOutOfResources);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("requestSeqNum", m.requestSeqNum);
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
