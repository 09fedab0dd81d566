#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/services_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeQ954Details(Q954Details& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.conferenceCalling = flags.Next();
  m.threePartyService = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallCreditServiceControl(CallCreditServiceControl& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 6);
  m.isExtended = flags.Next();
  m.hasAmountString = flags.Next();
  m.hasBillingMode = flags.Next();
  m.hasCallDurationLimit = flags.Next();
  m.hasEnforceCallDurationLimit = flags.Next();
  m.hasCallStartingPoint = flags.Next();
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
  PerFlags flags = PerReadFlags(r, 8);
  m.isExtended = flags.Next();
  m.q932Full = flags.Next();
  m.q951Full = flags.Next();
  m.q952Full = flags.Next();
  m.q953Full = flags.Next();
  m.q955Full = flags.Next();
  m.q956Full = flags.Next();
  m.q957Full = flags.Next();
  KELVRA_TRY(DecodeQ954Details(m.q954Info, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallLinkage(CallLinkage& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasGlobalCallId = flags.Next();
  m.hasThreadId = flags.Next();
  if (m.hasGlobalCallId) KELVRA_TRY(DecodeGloballyUniqueID(m.globalCallId, r));
  if (m.hasThreadId) KELVRA_TRY(DecodeGloballyUniqueID(m.threadId, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallCreditCapability(CallCreditCapability& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasCanDisplayAmountString = flags.Next();
  m.hasCanEnforceDurationLimit = flags.Next();
  if (m.hasCanDisplayAmountString) m.canDisplayAmountString = PerReadBit(r);
  if (m.hasCanEnforceDurationLimit) m.canEnforceDurationLimit = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeServiceControlSession(ServiceControlSession& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasContents = flags.Next();
  m.sessionId = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.hasContents) KELVRA_TRY(DecodeServiceControlDescriptor(m.contents, r));
  KELVRA_TRY(DecodeNullChoice(m.reason, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
