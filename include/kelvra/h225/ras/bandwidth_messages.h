// Changes of bandwidth: BRQ, BCF and BRJ.
#pragma once

#include "../common/bandwidth.h"
#include "../common/endpoints.h"
#include "../common/services.h"
#include "../common/usage.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

KELVRA_NULL_CHOICE(NullChoice, BandRejectReason, 6, "notBound", "invalidConferenceID", "invalidPermission",
                   "insufficientResources", "invalidRevision", "undefinedReason", "securityDenial");

struct BandwidthRequest {
  uint16_t requestSeqNum;
  EndpointIdentifier endpointIdentifier;
  ConferenceIdentifier conferenceID;
  uint16_t callReferenceValue;
  uint32_t hasCallType;
  CallType callType;
  uint32_t bandWidth;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasGatekeeperIdentifier;
  GatekeeperIdentifier gatekeeperIdentifier;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasAnsweredCall;
  uint32_t answeredCall;
  uint32_t hasCallLinkage;
  CallLinkage callLinkage;
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasUsageInformation;
  RasUsageInformation usageInformation;
  uint32_t hasBandwidthDetails;
  uint8_t bandwidthDetailsCount;
  BandwidthDetails* bandwidthDetails;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(endpointIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_MEMBER(conferenceID, DefinedType(OctetString(16)));
    KELVRA_MEMBER(callReferenceValue, Integer(0, 65535));
    KELVRA_OPTIONAL(hasCallType, callType, DefinedType());
    KELVRA_MEMBER(bandWidth, Integer(0, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
    KELVRA_ADDITION(hasGatekeeperIdentifier, gatekeeperIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasAnsweredCall, answeredCall, Boolean());
    KELVRA_ADDITION(hasCallLinkage, callLinkage, DefinedType());
    KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
    KELVRA_ADDITION(hasUsageInformation, usageInformation, DefinedType());
    KELVRA_ADDITION_LIST(hasBandwidthDetails, bandwidthDetails, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

struct BandwidthConfirm {
  uint16_t requestSeqNum;
  uint32_t bandWidth;
  uint32_t hasNonStandardData;
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
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(bandWidth, Integer(0, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

struct BandwidthReject {
  uint16_t requestSeqNum;
  BandRejectReason rejectReason;
  uint32_t allowedBandWidth;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t hasAltGKInfo;
  AltGKInfo altGKInfo;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(rejectReason, DefinedType());
    KELVRA_MEMBER(allowedBandWidth, Integer(0, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasAltGKInfo, altGKInfo, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
