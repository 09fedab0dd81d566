// The six exports: what each checks, clears, sets up and makes of the decode.
#include "api/kelvra.h"

#include "codec/memory.h"
#include "h225/call/q931_frame.h"
#include "h225/ras/ras_message_decode.h"
#include "h225/release.h"
#include "h245/messages/h245_message_decode.h"
#include "h245/release.h"

using kelvra::CodecFill;
using kelvra::PerReader;
using kelvra::h225::Q931MessageRecord;
using kelvra::h225::RasMessageRecord;
using kelvra::h245::H245MessageRecord;

namespace {

// RAS and H.245 keep the low 16 bits of a length.
PerReader ReaderOver(const uint8_t* buffer, uint32_t length) {
  PerReader reader;
  kelvra::PerReaderInit(reader, buffer, static_cast<uint16_t>(length));
  return reader;
}

}  // namespace

extern "C" {

intptr_t KELVRA_CALL KelvraDecodeRASMessage(RasMessageRecord* record, const uint8_t* buffer, uint32_t length) {
  if (record == nullptr || buffer == nullptr) return 0;
  CodecFill(record, 0, sizeof *record);
  PerReader reader = ReaderOver(buffer, length);
  const kelvra::Status status = kelvra::h225::DecodeRasMessage(*record, reader);
  if (status != kelvra::kDecoded || reader.position == reader.end) {
    kelvra::h225::ReleaseRasMessage(record);
    return 0;
  }
  kelvra::PerAlign(reader);
  return reinterpret_cast<intptr_t>(reader.position);
}

void KELVRA_CALL KelvraFreeRASMessage(RasMessageRecord* record) { kelvra::h225::ReleaseRasMessage(record); }

int32_t KELVRA_CALL KelvraDecodeQ931Message(Q931MessageRecord* record, const uint8_t* buffer, int32_t length) {
  if (record == nullptr || buffer == nullptr) return kelvra::h225::kQ931Rejected;
  CodecFill(record, 0, sizeof *record);
  return kelvra::h225::DecodeQ931Frame(record, buffer, length);
}

void KELVRA_CALL KelvraFreeQ931Message(Q931MessageRecord* record) {
  kelvra::h225::ReleaseH323UserInformation(record == nullptr ? nullptr : &record->userInformation);
}

int32_t KELVRA_CALL KelvraDecodeH245Message(H245MessageRecord* record, const uint8_t* buffer, uint32_t length) {
  if (record == nullptr || buffer == nullptr) return -1;
  CodecFill(record, 0, sizeof *record);
  PerReader reader = ReaderOver(buffer, length);
  kelvra::h245::DecodeMultimediaSystemControlMessage(*record, reader);
  kelvra::PerAlign(reader);
  return reader.position == reader.end ? 1 : 0;
}

void KELVRA_CALL KelvraFreeH245Message(H245MessageRecord* record) { kelvra::h245::ReleaseH245Message(*record); }

}  // extern "C"
