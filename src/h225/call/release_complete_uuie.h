// The Release Complete message body, and why calls end.
#pragma once

#include <stdint.h>

#include "../common/circuits.h"
#include "../common/crypto_tokens.h"
#include "../common/services.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct ReleaseCompleteReason {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandardReason;
    OctetStringValue replaceWithConferenceInvite;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Null("facilityCallDeflection");
        case 1: return v.Null("securityDenied");
        case 2: return v.Null("calledPartyNotRegistered");
        case 3: return v.Null("callerNotRegistered");
        case 4: return v.Null("newConnectionNeeded");
        case 5: return v.Record("nonStandardReason", m.nonStandardReason);
        case 6: return WalkOctets(v, "replaceWithConferenceInvite", m.replaceWithConferenceInvite);
        case 7: return v.Null("genericDataReason");
        case 8: return v.Null("neededFeatureNotSupported");
        case 9: return v.Null("tunnelledSignallingRejected");
        case 10: return v.Null("invalidCID");
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Null("noBandwidth");
      case 1: return v.Null("gatekeeperResources");
      case 2: return v.Null("unreachableDestination");
      case 3: return v.Null("destinationRejection");
      case 4: return v.Null("invalidRevision");
      case 5: return v.Null("noPermission");
      case 6: return v.Null("unreachableGatekeeper");
      case 7: return v.Null("gatewayResources");
      case 8: return v.Null("badFormatAddress");
      case 9: return v.Null("adaptiveBusy");
      case 10: return v.Null("inConf");
      case 11: return v.Null("undefinedReason");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct CallTerminationCause {
  uint8_t choiceTag;
  union {
    ReleaseCompleteReason releaseCompleteReason;
    OctetStringValue releaseCompleteCauseIE;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("releaseCompleteReason", m.releaseCompleteReason);
      case 1: return WalkOctets(v, "releaseCompleteCauseIE", m.releaseCompleteCauseIE);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.ObjectIdentifier("protocolIdentifier", m.protocolIdentifier);
    if (m.hasReason) v.Record("reason", m.reason);
    if (m.hasCallIdentifier) v.Record("callIdentifier", m.callIdentifier);
    if (m.hasTokens) v.List("tokens", KELVRA_LIST(m.tokens));
    if (m.hasCryptoTokens) v.List("cryptoTokens", KELVRA_LIST(m.cryptoTokens));
    if (m.hasBusyAddress) v.List("busyAddress", KELVRA_LIST(m.busyAddress));
    if (m.hasPresentationIndicator) v.Record("presentationIndicator", m.presentationIndicator);
    if (m.hasScreeningIndicator) v.Record("screeningIndicator", m.screeningIndicator);
    if (m.hasCapacity) v.Record("capacity", m.capacity);
    if (m.hasServiceControl) v.List("serviceControl", KELVRA_LIST(m.serviceControl));
    if (m.hasFeatureSet) v.Record("featureSet", m.featureSet);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
