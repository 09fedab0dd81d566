// The end of a call: DRQ, DCF and DRJ.
#pragma once

#include "../call/release_complete_uuie.h"
#include "../common/endpoints.h"
#include "../common/services.h"
#include "../common/usage.h"
#include "private_form.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

// Input that ends after the extension bit is kExhausted.
struct DisengageReasonNames {
  enum Alternative : uint32_t;
  static constexpr bool kEntryCheckFollowsExtensionBit = true;
  static constexpr uint32_t kRoots = 3;
  static constexpr const char* kAlternatives[] = {"forcedDrop", "normalDrop", "undefinedReason"};
};
using DisengageReason = NullChoice<DisengageReasonNames>;

struct DisengageRejectReasonNames {
  enum Alternative : uint32_t;
  static constexpr bool kEntryCheckFollowsExtensionBit = true;
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"notRegistered", "requestToDropOther", "securityDenial"};
};
using DisengageRejectReason = NullChoice<DisengageRejectReasonNames>;

struct DisengageRequest {
  uint16_t requestSeqNum;
  EndpointIdentifier endpointIdentifier;
  ConferenceIdentifier conferenceID;
  uint16_t callReferenceValue;
  DisengageReason disengageReason;
  uint32_t hasNonStandardData;
  uint8_t nonStandardDataForm;
  NonStandardParameter nonStandardData;
  uint8_t nonStandardDataPrivateForm[kPrivateFormOctets];
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
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;
  uint32_t hasUsageInformation;
  RasUsageInformation usageInformation;
  uint32_t hasTerminationCause;
  CallTerminationCause terminationCause;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_MEMBER(endpointIdentifier, DefinedType(BMPString(1, 128)));
    KELVRA_MEMBER(conferenceID, DefinedType(OctetString(16)));
    KELVRA_MEMBER(callReferenceValue, Integer(0, 65535));
    KELVRA_MEMBER(disengageReason, DefinedType());
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
    KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
    KELVRA_ADDITION(hasUsageInformation, usageInformation, DefinedType());
    KELVRA_ADDITION(hasTerminationCause, terminationCause, DefinedType());
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

struct DisengageConfirm {
  uint16_t requestSeqNum;
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
  uint32_t hasCircuitInfo;
  CircuitInfo circuitInfo;
  uint32_t hasUsageInformation;
  RasUsageInformation usageInformation;
  uint32_t hasGenericData;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(requestSeqNum, Integer(1, 65535));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasIntegrityCheckValue, integrityCheckValue, DefinedType());
    KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
    KELVRA_ADDITION(hasCircuitInfo, circuitInfo, DefinedType());
    KELVRA_ADDITION(hasUsageInformation, usageInformation, DefinedType());
    KELVRA_ADDITION_LIST(hasGenericData, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

struct DisengageReject {
  uint16_t requestSeqNum;
  DisengageRejectReason rejectReason;
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
