// The Q.931 message, the outermost record of the call-signalling family.
#pragma once

#include "../../walk.h"
#include "h323_user_information.h"
#include "q931_values.h"

namespace kelvra::h225 {

// Which information elements a message carried.
enum Q931Presence : uint32_t {
  kCalledPartyNumberPresent = 0x00000001,
  kCallingPartyNumberPresent = 0x00000002,
  kCausePresent = 0x00000004,
  kUserInformationPresent = 0x00000008,
  kBearerCapabilityPresent = 0x00000010,
  kCallStatePresent = 0x00000040,
  kDateTimePresent = 0x00000080,
  kKeypadFacilityPresent = 0x00000100,
  kNotificationIndicatorPresent = 0x00000200,
  kProgressIndicatorPresent = 0x00000400,
  kSignalPresent = 0x00001000,
  kCallIdentityPresent = 0x00002000,
  kCalledPartySubaddressPresent = 0x00004000,
  kCallingPartySubaddressPresent = 0x00008000,
  kSendingCompletePresent = 0x00010000,  // never set: single-octet elements are ignored
};

#pragma pack(push, 1)

// Octets of information elements are kept raw, including extension and coding bits. Party numbers start
// after the type-of-number octet and end with a NUL; an octet 3a counts as the first digit.
struct Q931MessageRecord {
  uint32_t presenceMask;  // Q931Presence
  uint8_t protocolDiscriminator;
  uint8_t callReferenceLength;
  uint16_t callReferenceValue;  // including the flag bit
  uint8_t messageType;          // Q931MessageType
  uint8_t calledPartyNumber[33];
  uint8_t callingPartyNumber[33];
  uint8_t reservedBehindNumbers[51];
  uint8_t causeValue;  // CauseOf() names it
  uint8_t callState;
  uint8_t dateTime[6];
  uint8_t keypadFacility[34];
  uint8_t keypadTerminator;  // zero
  uint8_t notificationIndicator;
  uint8_t progressIndicator[2];
  uint8_t progressIndicatorLength;
  uint8_t reservedRedirectingNumber[33];
  uint8_t signalValue;
  uint8_t bearerCapability[12];
  uint8_t bearerCapabilityLength;
  uint8_t callIdentity[10];
  uint8_t callIdentityLength;
  uint8_t calledPartySubaddress[23];
  uint8_t calledPartySubaddressLength;
  uint8_t callingPartySubaddress[23];
  uint8_t callingPartySubaddressLength;
  H323UserInformation userInformation;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    const auto present = [&](Q931Presence bit) { return (m.presenceMask & bit) != 0; };
    const auto text = [&](const char* name, const uint8_t* octets, uint32_t room) {
      uint32_t length = 0;
      while (length < room && octets[length] != 0) ++length;
      v.EmbeddedOctets(name, octets, length, OctetNotation::kCharacters);
    };
    const auto raw = [&](const char* name, const uint8_t* octets, uint32_t length) {
      v.EmbeddedOctets(name, octets, length, OctetNotation::kOctets);
    };
    v.Number("protocolDiscriminator", m.protocolDiscriminator);
    v.Number("callReferenceValue", m.callReferenceValue);
    v.Number("messageType", m.messageType);
    if (present(kCalledPartyNumberPresent)) text("calledPartyNumber", m.calledPartyNumber, 33);
    if (present(kCallingPartyNumberPresent)) text("callingPartyNumber", m.callingPartyNumber, 33);
    if (present(kCausePresent)) v.Number("causeValue", m.causeValue);
    if (present(kCallStatePresent)) v.Number("callState", m.callState);
    if (present(kDateTimePresent)) raw("dateTime", m.dateTime, 6);
    if (present(kKeypadFacilityPresent)) text("keypadFacility", m.keypadFacility, 34);
    if (present(kNotificationIndicatorPresent)) v.Number("notificationIndicator", m.notificationIndicator);
    if (present(kProgressIndicatorPresent)) raw("progressIndicator", m.progressIndicator, m.progressIndicatorLength);
    if (present(kSignalPresent)) v.Number("signalValue", m.signalValue);
    if (present(kBearerCapabilityPresent)) raw("bearerCapability", m.bearerCapability, m.bearerCapabilityLength);
    if (present(kCallIdentityPresent)) raw("callIdentity", m.callIdentity, m.callIdentityLength);
    if (present(kCalledPartySubaddressPresent)) {
      raw("calledPartySubaddress", m.calledPartySubaddress, m.calledPartySubaddressLength);
    }
    if (present(kCallingPartySubaddressPresent)) {
      raw("callingPartySubaddress", m.callingPartySubaddress, m.callingPartySubaddressLength);
    }
    if (present(kUserInformationPresent)) v.Record("h323-UserInformation", m.userInformation);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
