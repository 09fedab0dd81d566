#include "h225/release.h"

#include "kelvra/h225/call/h323_user_information.h"
#include "kelvra/h225/ras/ras_message.h"
#include "record/release.h"

namespace kelvra::h225 {
namespace {

template <class Record>
void ReleaseUnlessNull(Record* record) {
  if (record == nullptr) {
    CodecTrace(kTraceDecoder, kTraceNullRecord, kReasonNullRecord, kSourceRelease, __LINE__);
    return;
  }
  Release(*record, ReleaseVisitor("codec/h323free"));
}

}  // namespace

void ReleaseRasMessage(RasMessageRecord* record) { ReleaseUnlessNull(record); }

void ReleaseH323UserInformation(H323UserInformation* record) { ReleaseUnlessNull(record); }

}  // namespace kelvra::h225
