#include "h225/common/uuies_requested_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeUUIEsRequested(UUIEsRequested& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.setup = PerReadBit(r);
  m.callProceeding = PerReadBit(r);
  m.connect = PerReadBit(r);
  m.alerting = PerReadBit(r);
  m.information = PerReadBit(r);
  m.releaseComplete = PerReadBit(r);
  m.facility = PerReadBit(r);
  m.progress = PerReadBit(r);
  m.empty = PerReadBit(r);
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  m.hasStatus = PerReadAdditionBit(r, additions);
  m.hasStatusInquiry = PerReadAdditionBit(r, additions);
  m.hasSetupAcknowledge = PerReadAdditionBit(r, additions);
  m.hasNotify = PerReadAdditionBit(r, additions);
  PerNoteUnknownAdditions(r, additions);
  if (m.hasStatus) m.status = PerReadOpenBoolean(r);
  if (m.hasStatusInquiry) m.statusInquiry = PerReadOpenBoolean(r);
  if (m.hasSetupAcknowledge) m.setupAcknowledge = PerReadOpenBoolean(r);
  if (m.hasNotify) m.notify = PerReadOpenBoolean(r);
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
