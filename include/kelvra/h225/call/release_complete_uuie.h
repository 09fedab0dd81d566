// The Release Complete message body, and why calls end.
#pragma once

#include "../common/circuits.h"
#include "../common/crypto_tokens.h"
#include "../common/protocol_identifier.h"
#include "../common/services.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct ReleaseCompleteReason {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandardReason;
    OctetStringValue replaceWithConferenceInvite;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(noBandwidth);
    KELVRA_NULL(gatekeeperResources);
    KELVRA_NULL(unreachableDestination);
    KELVRA_NULL(destinationRejection);
    KELVRA_NULL(invalidRevision);
    KELVRA_NULL(noPermission);
    KELVRA_NULL(unreachableGatekeeper);
    KELVRA_NULL(gatewayResources);
    KELVRA_NULL(badFormatAddress);
    KELVRA_NULL(adaptiveBusy);
    KELVRA_NULL(inConf);
    KELVRA_NULL(undefinedReason);
    KELVRA_EXTENSION(isExtension);
    KELVRA_NULL(facilityCallDeflection);
    KELVRA_NULL(securityDenied);
    KELVRA_NULL(calledPartyNotRegistered);
    KELVRA_NULL(callerNotRegistered);
    KELVRA_NULL(newConnectionNeeded);
    KELVRA_ALTERNATIVE(nonStandardReason, DefinedType());
    KELVRA_ALTERNATIVE(replaceWithConferenceInvite, DefinedType(OctetString(16)));
    KELVRA_NULL(genericDataReason);
    KELVRA_NULL(neededFeatureNotSupported);
    KELVRA_NULL(tunnelledSignallingRejected);
    KELVRA_NULL(invalidCID);
  KELVRA_END
};

struct CallTerminationCause {
  uint8_t choiceTag;
  union {
    ReleaseCompleteReason releaseCompleteReason;
    OctetStringValue releaseCompleteCauseIE;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(releaseCompleteReason, DefinedType());
    KELVRA_ALTERNATIVE(releaseCompleteCauseIE, OctetString(2, 32));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct ReleaseCompleteUUIE {
  ObjectIdentifierValue protocolIdentifier;
  uint32_t hasReason;
  ReleaseCompleteReason reason;
  uint32_t isExtended;
  uint32_t hasCallIdentifier;
  CallIdentifier callIdentifier;
  uint32_t hasTokens;
  uint8_t tokensCount;
  h235::ClearToken* tokens;
  uint32_t hasCryptoTokens;
  uint8_t cryptoTokensCount;
  CryptoH323Token* cryptoTokens;
  uint32_t hasBusyAddress;
  uint8_t busyAddressCount;
  AliasAddress* busyAddress;
  uint32_t hasPresentationIndicator;
  PresentationIndicator presentationIndicator;
  uint32_t hasScreeningIndicator;
  ScreeningIndicator screeningIndicator;
  uint32_t hasCapacity;
  CallCapacity capacity;
  uint32_t hasServiceControl;
  uint8_t serviceControlCount;
  ServiceControlSession* serviceControl;
  uint32_t hasFeatureSet;
  FeatureSet featureSet;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(protocolIdentifier, ProtocolIdentifier());
    KELVRA_OPTIONAL(hasReason, reason, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasCallIdentifier, callIdentifier, DefinedType());
    KELVRA_ADDITION_LIST(hasTokens, tokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasCryptoTokens, cryptoTokens, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasBusyAddress, busyAddress, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasPresentationIndicator, presentationIndicator, DefinedType());
    KELVRA_ADDITION(hasScreeningIndicator, screeningIndicator, DefinedType());
    KELVRA_ADDITION(hasCapacity, capacity, DefinedType());
    KELVRA_ADDITION_LIST(hasServiceControl, serviceControl, SequenceOf(DefinedType()));
    KELVRA_ADDITION(hasFeatureSet, featureSet, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
