// The six exports: what each checks, clears, sets up and makes of the decode.
#include "kelvra/kelvra.h"

#include <string.h>

#include "h225/call/q931_frame.h"
#include "h225/release.h"
#include "h245/release.h"
#include "per/decoder.h"

using kelvra::PerReader;
using kelvra::h225::Q931MessageRecord;
using kelvra::h225::RasMessageRecord;
using kelvra::h245::H245MessageRecord;

namespace {

// By calls for a piece at a time, which the C library does with its widest stores; the compiler would clear the
// record one word after the other.
template <class Record>
void ClearRecord(Record* record) {
  constexpr size_t kPiece = 2048;
  auto* octets = reinterpret_cast<uint8_t*>(record);
  for (size_t done = 0; done < sizeof *record; done += kPiece) {
    size_t size = sizeof *record - done < kPiece ? sizeof *record - done : kPiece;
    __asm__("" : "+r"(size));
    memset(octets + done, 0, size);
  }
}

}  // namespace

extern "C" {

intptr_t KELVRA_CALL KelvraDecodeRASMessage(RasMessageRecord* record, const uint8_t* buffer, uint32_t length) {
  if (record == nullptr || buffer == nullptr) return 0;
  ClearRecord(record);
  PerReader reader = kelvra::PerReaderOver(buffer, length);
  const kelvra::Status status = kelvra::Decode(*record, reader);
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
  ClearRecord(record);
  return kelvra::h225::DecodeQ931Frame(record, buffer, length);
}

void KELVRA_CALL KelvraFreeQ931Message(Q931MessageRecord* record) {
  kelvra::h225::ReleaseH323UserInformation(record == nullptr ? nullptr : &record->userInformation);
}

int32_t KELVRA_CALL KelvraDecodeH245Message(H245MessageRecord* record, const uint8_t* buffer, uint32_t length) {
  if (record == nullptr || buffer == nullptr) return -1;
  ClearRecord(record);
  PerReader reader = kelvra::PerReaderOver(buffer, length);
  static_cast<void>(kelvra::Decode(*record, reader));
  kelvra::PerAlign(reader);
  return reader.position == reader.end ? 1 : 0;
}

void KELVRA_CALL KelvraFreeH245Message(H245MessageRecord* record) { kelvra::h245::ReleaseH245Message(*record); }

}  // extern "C"
