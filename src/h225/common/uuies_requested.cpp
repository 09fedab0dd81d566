#include "h225/common/uuies_requested_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeUUIEsRequested(UUIEsRequested& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 10);
  m.isExtended = flags.Next();
  m.setup = flags.Next();
  m.callProceeding = flags.Next();
  m.connect = flags.Next();
  m.alerting = flags.Next();
  m.information = flags.Next();
  m.releaseComplete = flags.Next();
  m.facility = flags.Next();
  m.progress = flags.Next();
  m.empty = flags.Next();
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 4);
  m.hasStatus = known.Next();
  m.hasStatusInquiry = known.Next();
  m.hasSetupAcknowledge = known.Next();
  m.hasNotify = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasStatus) m.status = PerReadOpenBoolean(r);
  if (m.hasStatusInquiry) m.statusInquiry = PerReadOpenBoolean(r);
  if (m.hasSetupAcknowledge) m.setupAcknowledge = PerReadOpenBoolean(r);
  if (m.hasNotify) m.notify = PerReadOpenBoolean(r);
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
