// The state of an endpoint and of its calls: IRR.
#pragma once

#include <stdint.h>

#include "../call/h323_user_information.h"
#include "../common/bandwidth.h"
#include "../common/usage.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct InfoRequestResponseStatus {
  uint8_t choiceTag;
  union {
    uint16_t segment;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Null("complete");
      case 1: return v.Null("incomplete");
      case 2: return v.Number("segment", m.segment);
      case 3: return v.Null("invalidCall");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct InfoRequestResponse {
  struct PerCallInfo {
    struct Pdu {
      H323UUPDU h323pdu;
      uint32_t sent;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        v.Record("h323pdu", m.h323pdu);
        v.Boolean("sent", m.sent);
      }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
      v.Number("callReferenceValue", m.callReferenceValue);
      WalkOctets(v, "conferenceID", m.conferenceID);
      if (m.hasOriginator) v.Boolean("originator", m.originator);
      if (m.hasAudio) v.List("audio", KELVRA_LIST(m.audio));
      if (m.hasVideo) v.List("video", KELVRA_LIST(m.video));
      if (m.hasData) v.List("data", KELVRA_LIST(m.data));
      v.Record("h245", m.h245);
      v.Record("callSignalling", m.callSignalling);
      v.Record("callType", m.callType);
      v.Number("bandWidth", m.bandWidth);
      v.Record("callModel", m.callModel);
      if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
      if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
      if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
      if (m.hasSubstituteConfIDs)
        v.OctetStrings("substituteConfIDs", KELVRA_LIST(m.substituteConfIDs), OctetNotation::kOctets);
      if (m.hasPdu) v.List("pdu", KELVRA_LIST(m.pdu));
      if (m.hasCallLinkage) v.Record("callLinkage", m.callLinkage);
      if (m.hasUsageInformation) v.Record("usageInformation", m.usageInformation);
      if (m.hasCircuitInfo) v.Record("circuitInfo", m.circuitInfo);
    }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    v.Number("requestSeqNum", m.requestSeqNum);
    v.Record("endpointType", m.endpointType);
    v.Characters16("endpointIdentifier", m.endpointIdentifier);
    v.Record("rasAddress", m.rasAddress);
    v.List("callSignalAddress", KELVRA_LIST(m.callSignalAddress));
    if (m.hasEndpointAlias) v.List("endpointAlias", KELVRA_LIST(m.endpointAlias));
    if (m.hasPerCallInfo) v.List("perCallInfo", KELVRA_LIST(m.perCallInfo));
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasIntegrityCheckValue) v.Record("integrityCheckValue", m.integrityCheckValue);
    if (m.hasNeedResponse) v.Boolean("needResponse", m.needResponse);
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasIrrStatus) v.Record("irrStatus", m.irrStatus);
    if (m.hasUnsolicited) v.Boolean("unsolicited", m.unsolicited);
    if (m.hasGenericData) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
