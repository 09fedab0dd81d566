#include "h225/common/non_standard_decode.h"
#include "h225/common/usage_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

void DecodeWhen(RasUsageSpecification::When& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasStart = flags.Next();
  m.hasEnd = flags.Next();
  m.hasInIrr = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeCallStartingPoint(RasUsageSpecification::CallStartingPoint& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasAlerting = flags.Next();
  m.hasConnect = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

Status DecodeRasUsageInfoTypes(RasUsageInfoTypes& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasStartTime = flags.Next();
  m.hasEndTime = flags.Next();
  m.hasTerminationCause = flags.Next();
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.nonStandardUsageTypes), r, DecodeNonStandardParameter));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeRasUsageSpecification(RasUsageSpecification& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasCallStartingPoint = flags.Next();
  DecodeWhen(m.when, r);
  if (m.hasCallStartingPoint) DecodeCallStartingPoint(m.callStartingPoint, r);
  KELVRA_TRY(DecodeRasUsageInfoTypes(m.required, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeRasUsageInformation(RasUsageInformation& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasAlertingTime = flags.Next();
  m.hasConnectTime = flags.Next();
  m.hasEndTime = flags.Next();
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.nonStandardUsageFields), r, DecodeNonStandardParameter));
  if (m.hasAlertingTime) m.alertingTime = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasConnectTime) m.connectTime = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasEndTime) m.endTime = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
