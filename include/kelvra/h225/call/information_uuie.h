// The Information message body, and the body shared by Status, Status Inquiry, Setup Acknowledge and Notify.
#pragma once

#include "../../h245/channels/open_logical_channel.h"
#include "../common/circuits.h"
#include "../common/crypto_tokens.h"
#include "../common/protocol_identifier.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(protocolIdentifier, ProtocolIdentifier());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasFastStart, fastStart, SequenceOf(Containing()));
    KELVRA_ADDITION(hasFastConnectRefused, fastConnectRefused, Null());
    KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(protocolIdentifier, ProtocolIdentifier());
    KELVRA_MEMBER(callIdentifier, DefinedType());
    KELVRA_OPTIONAL_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

using StatusUUIE = CallStatusUUIE;

using StatusInquiryUUIE = CallStatusUUIE;

using SetupAcknowledgeUUIE = CallStatusUUIE;

using NotifyUUIE = CallStatusUUIE;

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
