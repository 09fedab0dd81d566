#include "h225/release.h"

#include "kelvra/h225/call/h323_user_information.h"
#include "kelvra/h225/ras/ras_message.h"
#include "record/release.h"

namespace kelvra::h225 {
namespace {

template <class Record>
void Release(Record* record) {
  if (record == nullptr) {
    CodecTrace(kTraceDecoder, kTraceNullRecord, kReasonNullRecord, kSourceRelease, __LINE__);
    return;
  }
  ReleaseVisitor release("codec/h323free");
  Record::Walk(*record, release);
}

}  // namespace

void ReleaseRasMessage(RasMessageRecord* record) { Release(record); }

void ReleaseH323UserInformation(H323UserInformation* record) { Release(record); }

}  // namespace kelvra::h225
