#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"
#include "h245/messages/non_standard_message_decode.h"
#include "h245/messages/private_message_decode.h"

namespace kelvra::h245 {
namespace {

bool IsPrivate(const NonStandardIdentifier& m) {
  const NonStandardIdentifier::H221NonStandard& vendor = m.h221NonStandard;
  return m.choiceTag == 1 && vendor.t35CountryCode == 86 && vendor.t35Extension == 1 && vendor.manufacturerCode == 1;
}

// The private message of `length` octets that begins here. The reader is bounded to them, so that what
// the message claims counts as claimed by the whole; it resumes behind them, whatever was consumed.
Status DecodeBounded(PrivateMessage& m, PerReader& r, uint32_t length) {
  Status status = kDecoded;
  {
    const PerBounds bounds(r, length);
    status = DecodePrivateMessage(m, r);
  }
  if (status != kDecoded) PerMoveToEnd(r);
  return status;
}

// Data of length 0 holds no message and is none of the failures.
Status DecodePrivateData(H245NonStandardMessageRecord& m, PerReader& r) {
  const uint32_t length = PerReadLength(r);
  if (length == 0) return kDecoded;
  if (m.messageClass > kIndication) return kMalformed;
  KELVRA_TRY(DecodeBounded(m.privateMessage, r, length));
  m.privateMessageDecoded = 1;
  return kDecoded;
}

}  // namespace

void DecodeNonStandardMessage(H245NonStandardMessageRecord& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNonStandardIdentifier(m.nonStandardData.nonStandardIdentifier, r);
  if (IsPrivate(m.nonStandardData.nonStandardIdentifier)) {
    KELVRA_OR_STOP(DecodePrivateData(m, r));
  } else {
    DecodeNonStandardData(m.nonStandardData, r);
  }
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
