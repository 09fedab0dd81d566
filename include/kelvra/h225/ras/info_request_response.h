// The state of an endpoint and of its calls: IRR.
#pragma once

#include "../call/h323_user_information.h"
#include "../common/bandwidth.h"
#include "../common/usage.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct InfoRequestResponseStatus {
  uint8_t choiceTag;
  union {
    uint16_t segment;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(complete);
    KELVRA_NULL(incomplete);
    KELVRA_ALTERNATIVE(segment, Integer(0, 65535));
    KELVRA_NULL(invalidCall);
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct InfoRequestResponse {
  struct PerCallInfo {
    struct Pdu {
      H323UUPDU h323pdu;
      uint32_t sent;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(h323pdu, DefinedType());
        KELVRA_MEMBER(sent, Boolean());
      KELVRA_END
    };

    uint32_t hasNonStandardData;
    NonStandardParameter nonStandardData;
    uint16_t callReferenceValue;
    ConferenceIdentifier conferenceID;
    uint32_t hasOriginator;
    uint32_t originator;
    uint32_t hasAudio;
    uint8_t audioCount;
    RTPSession* audio;
    uint32_t hasVideo;
    uint8_t videoCount;
    RTPSession* video;
    uint32_t hasData;
    uint8_t dataCount;
    TransportChannelInfo* data;
    TransportChannelInfo h245;
    TransportChannelInfo callSignalling;
    CallType callType;
    uint32_t bandWidth;
    CallModel callModel;
    uint32_t isExtended;
    uint32_t hasCallIdentifier;
    CallIdentifier callIdentifier;
    uint32_t hasTokens;
    uint8_t tokensCount;
    h235::ClearToken* tokens;
    uint32_t hasCryptoTokens;
    uint8_t cryptoTokensCount;
    CryptoH323Token* cryptoTokens;
    uint32_t hasSubstituteConfIDs;
    uint8_t substituteConfIDsCount;
    ConferenceIdentifier* substituteConfIDs;
    uint32_t hasPdu;
    uint8_t pduCount;
    Pdu* pdu;
    uint32_t hasCallLinkage;
    CallLinkage callLinkage;
    uint32_t hasUsageInformation;
    RasUsageInformation usageInformation;
    uint32_t hasCircuitInfo;
    CircuitInfo circuitInfo;

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
      KELVRA_MEMBER(callReferenceValue, Integer(0, 65535));
      KELVRA_MEMBER(conferenceID, DefinedType(OctetString(16)));
      KELVRA_OPTIONAL(hasOriginator, originator, Boolean());
      KELVRA_OPTIONAL_LIST(hasAudio, audio, SequenceOf(DefinedType()));
      KELVRA_OPTIONAL_LIST(hasVideo, video, SequenceOf(DefinedType()));
      KELVRA_OPTIONAL_LIST(hasData, data, SequenceOf(DefinedType()));
      KELVRA_MEMBER(h245, DefinedType());
      KELVRA_MEMBER(callSignalling, DefinedType());
      KELVRA_MEMBER(callType, DefinedType());
      KELVRA_MEMBER(bandWidth, Integer(0, kUnsigned32Maximum));
      KELVRA_MEMBER(callModel, DefinedType());
      KELVRA_EXTENSION(isExtended);
      KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
      KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
      KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
      KELVRA_ADDITION_LIST(hasSubstituteConfIDs, substituteConfIDs, SequenceOf(DefinedType(OctetString(16))));
      KELVRA_ADDITION_LIST(hasPdu, pdu, SequenceOf(InlineType()));
      KELVRA_ADDITION(hasCallLinkage, callLinkage, DefinedType());
      KELVRA_ADDITION(hasUsageInformation, usageInformation, DefinedType());
      KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
    KELVRA_END
  };

  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint16_t requestSeqNum;
  EndpointType endpointType;
  EndpointIdentifier endpointIdentifier;
  TransportAddress rasAddress;
  uint8_t callSignalAddressCount;
  TransportAddress* callSignalAddress;
  uint32_t hasEndpointAlias;
  uint8_t endpointAliasCount;
  AliasAddress* endpointAlias;
  uint32_t hasPerCallInfo;
  uint8_t perCallInfoCount;
  PerCallInfo* perCallInfo;
  uint32_t isExtended;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasIntegrityCheckValue;
  ICV integrityCheckValue;
  uint32_t hasNeedResponse;
  uint32_t needResponse;
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasIrrStatus;
  InfoRequestResponseStatus irrStatus;
  uint32_t hasUnsolicited;
  uint32_t unsolicited;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(endpointType, DefinedType());
    KELVRA_MEMBER(endpointIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_MEMBER(rasAddress, DefinedType());
    KELVRA_MEMBER_LIST(callSignalAddress, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasEndpointAlias, endpointAlias, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasPerCallInfo, perCallInfo, SequenceOf(InlineType()));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasNeedResponse, needResponse, Boolean());
    KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
    KELVRA_ADDITION(hasIrrStatus, irrStatus, DefinedType());
    KELVRA_ADDITION(hasUnsolicited, unsolicited, Boolean());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
