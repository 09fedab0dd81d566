// The six exports: their argument checks, setup and results.
#include "kelvra/kelvra.h"

#include <string.h>

#include "h225/call/q931_frame.h"
#include "per/decoder.h"
#include "record/release.h"

using kelvra::PerReader;
using kelvra::h225::Q931MessageRecord;
using kelvra::h225::RasMessageRecord;
using kelvra::h245::H245MessageRecord;

namespace {

// Clears by calls of memset, which uses the C library's widest stores; the compiler would clear the record word by
// word.
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

// A null record is traced and ignored.
template <class Record>
void ReleaseUnlessNull(Record* record) {
  if (record == nullptr) {
    kelvra::CodecTrace(kelvra::kTraceDecoder, kelvra::kTraceNullRecord, kelvra::kReasonNullRecord,
                       kelvra::kSourceRelease, __LINE__);
    return;
  }
  Release(*record, kelvra::ReleaseVisitor(kelvra::h225::kReleasePath));
}

}  // namespace

extern "C" {

intptr_t KELVRA_CALL KelvraDecodeRASMessage(RasMessageRecord* record, const uint8_t* buffer, uint32_t length) {
  if (record == nullptr || buffer == nullptr) return 0;
  ClearRecord(record);
  PerReader reader = kelvra::PerReaderOver(buffer, length);
  const kelvra::Status status = kelvra::Decode(*record, reader);
  if (status != kelvra::kDecoded || reader.position == reader.end) {
    ReleaseUnlessNull(record);
    return 0;
  }
  kelvra::PerAlign(reader);
  return reinterpret_cast<intptr_t>(reader.position);
}

void KELVRA_CALL KelvraFreeRASMessage(RasMessageRecord* record) { ReleaseUnlessNull(record); }

int32_t KELVRA_CALL KelvraDecodeQ931Message(Q931MessageRecord* record, const uint8_t* buffer, int32_t length) {
  if (record == nullptr || buffer == nullptr) return kelvra::h225::kQ931Rejected;
  ClearRecord(record);
  return kelvra::h225::DecodeQ931Frame(record, buffer, length);
}

void KELVRA_CALL KelvraFreeQ931Message(Q931MessageRecord* record) {
  ReleaseUnlessNull(record == nullptr ? nullptr : &record->userInformation);
}

int32_t KELVRA_CALL KelvraDecodeH245Message(H245MessageRecord* record, const uint8_t* buffer, uint32_t length) {
  if (record == nullptr || buffer == nullptr) return -1;
  ClearRecord(record);
  PerReader reader = kelvra::PerReaderOver(buffer, length);
  static_cast<void>(kelvra::Decode(*record, reader));
  kelvra::PerAlign(reader);
  return reader.position == reader.end ? 1 : 0;
}

void KELVRA_CALL KelvraFreeH245Message(H245MessageRecord* record) {
  // Not tested for null.
  Release(*record, kelvra::ReleaseVisitor(kelvra::h245::kReleasePath));
}

}  // extern "C"
