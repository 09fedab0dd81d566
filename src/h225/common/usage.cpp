#include "h225/common/non_standard_decode.h"
#include "h225/common/usage_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

void DecodeWhen(RasUsageSpecification::When& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasStart = PerReadBit(r);
  m.hasEnd = PerReadBit(r);
  m.hasInIrr = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeCallStartingPoint(RasUsageSpecification::CallStartingPoint& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasAlerting = PerReadBit(r);
  m.hasConnect = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

Status DecodeRasUsageInfoTypes(RasUsageInfoTypes& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasStartTime = PerReadBit(r);
  m.hasEndTime = PerReadBit(r);
  m.hasTerminationCause = PerReadBit(r);
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.nonStandardUsageTypes), r, DecodeNonStandardParameter));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeRasUsageSpecification(RasUsageSpecification& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasCallStartingPoint = PerReadBit(r);
  DecodeWhen(m.when, r);
  if (m.hasCallStartingPoint) DecodeCallStartingPoint(m.callStartingPoint, r);
  KELVRA_TRY(DecodeRasUsageInfoTypes(m.required, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeRasUsageInformation(RasUsageInformation& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasAlertingTime = PerReadBit(r);
  m.hasConnectTime = PerReadBit(r);
  m.hasEndTime = PerReadBit(r);
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.nonStandardUsageFields), r, DecodeNonStandardParameter));
  if (m.hasAlertingTime) m.alertingTime = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasConnectTime) m.connectTime = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasEndTime) m.endTime = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
