#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/services_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeQ954Details(Q954Details& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.conferenceCalling = PerReadBit(r);
  m.threePartyService = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallCreditServiceControl(CallCreditServiceControl& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasAmountString = PerReadBit(r);
  m.hasBillingMode = PerReadBit(r);
  m.hasCallDurationLimit = PerReadBit(r);
  m.hasEnforceCallDurationLimit = PerReadBit(r);
  m.hasCallStartingPoint = PerReadBit(r);
  if (m.hasAmountString) PerReadSizedBMPString(m.amountString, r, 1, 512);
  if (m.hasBillingMode) KELVRA_TRY(DecodeNullChoice(m.billingMode, r));
  if (m.hasCallDurationLimit) m.callDurationLimit = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasEnforceCallDurationLimit) m.enforceCallDurationLimit = PerReadBit(r);
  if (m.hasCallStartingPoint) KELVRA_TRY(DecodeNullChoice(m.callStartingPoint, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeServiceControlDescriptor(ServiceControlDescriptor& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: PerReadSizedOctets(m.url, r, 0, 512); return kDecoded;
    case 1: PerReadAnnouncedOctetString(m.signal, r); return kDecoded;
    case 2: return DecodeNonStandardParameter(m.nonStandard, r);
    case 3: return DecodeCallCreditServiceControl(m.callCreditServiceControl, r);
    default: return kMalformed;
  }
}

}  // namespace

Status DecodeQseriesOptions(QseriesOptions& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.q932Full = PerReadBit(r);
  m.q951Full = PerReadBit(r);
  m.q952Full = PerReadBit(r);
  m.q953Full = PerReadBit(r);
  m.q955Full = PerReadBit(r);
  m.q956Full = PerReadBit(r);
  m.q957Full = PerReadBit(r);
  KELVRA_TRY(DecodeQ954Details(m.q954Info, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallLinkage(CallLinkage& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasGlobalCallId = PerReadBit(r);
  m.hasThreadId = PerReadBit(r);
  if (m.hasGlobalCallId) KELVRA_TRY(DecodeGloballyUniqueID(m.globalCallId, r));
  if (m.hasThreadId) KELVRA_TRY(DecodeGloballyUniqueID(m.threadId, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallCreditCapability(CallCreditCapability& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasCanDisplayAmountString = PerReadBit(r);
  m.hasCanEnforceDurationLimit = PerReadBit(r);
  if (m.hasCanDisplayAmountString) m.canDisplayAmountString = PerReadBit(r);
  if (m.hasCanEnforceDurationLimit) m.canEnforceDurationLimit = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeServiceControlSession(ServiceControlSession& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasContents = PerReadBit(r);
  m.sessionId = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.hasContents) KELVRA_TRY(DecodeServiceControlDescriptor(m.contents, r));
  KELVRA_TRY(DecodeNullChoice(m.reason, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
