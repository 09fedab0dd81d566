#include "observer/comparison.h"

#include <cstring>
#include <memory>

#include "faults/record_digest.h"
#include "h225/call/q931_frame.h"
#include "observer/observer.h"
#include "per/decoder.h"
#include "record/release.h"

namespace kelvra::test {
namespace {

// A record and how its decode ended.
template <class Record>
struct Outcome {
  Record record;
  DecodeEnd end{};

  Outcome() { std::memset(static_cast<void*>(&record), 0, sizeof record); }
  ~Outcome() { Release(record, ReleaseVisitor("test")); }
  Outcome(const Outcome&) = delete;
  Outcome& operator=(const Outcome&) = delete;

  uint64_t DigestOfRecord() {
    Digest digest;
    BlocksOf(record).AddTo(digest, &record, sizeof record);
    return digest.Value();
  }
};

template <class Record>
void DecodePlainly(Outcome<Record>& outcome, PerReader& reader) {
  const auto start = reinterpret_cast<uintptr_t>(reader.position);
  outcome.end.status = Decode(outcome.record, reader);
  outcome.end.bit = uint64_t{reinterpret_cast<uintptr_t>(reader.position) - start} * 8 + reader.bitOffset;
  outcome.end.isAtEnd = PerAtEnd(reader);
}

template <class Record>
bool Agree(Outcome<Record>& plain, Outcome<Record>& observed) {
  return plain.end.status == observed.end.status && plain.end.bit == observed.end.bit &&
         plain.end.isAtEnd == observed.end.isAtEnd && plain.DigestOfRecord() == observed.DigestOfRecord();
}

struct FaultListener : DecodeObserver {
  bool heard = false;
  void Stopped(const Fault&) override { heard = true; }
};

template <class Record, class Observe>
bool Compare(PerReader& reader, Observe observe) {
  const auto plain = std::make_unique<Outcome<Record>>();
  const auto observed = std::make_unique<Outcome<Record>>();
  DecodePlainly(*plain, reader);
  FaultListener faults;
  observed->end = observe(observed->record, faults);
  const bool goesPastTheEnd = reader.position > reader.end;
  return Agree(*plain, *observed) && (faults.heard || !goesPastTheEnd);
}

}  // namespace

bool ObservedDecodeAgrees(Family family, const uint8_t* octets, size_t size) {
  const auto length = static_cast<uint32_t>(size);
  PerReader reader;
  PerReaderInit(reader, octets, static_cast<uint16_t>(length));
  switch (family) {
    case Family::kRas:
      return Compare<h225::RasMessageRecord>(
          reader, [&](auto& record, DecodeObserver& faults) { return ObserveRas(record, octets, length, faults); });
    case Family::kH245:
      return Compare<h245::H245MessageRecord>(
          reader, [&](auto& record, DecodeObserver& faults) { return ObserveH245(record, octets, length, faults); });
    case Family::kQ931: break;
  }
  const auto frameLength = static_cast<int32_t>(size);
  const h225::Q931Frame frame = h225::FrameOf(octets, frameLength);
  h225::Q931Element element{};
  if (h225::FindQ931Element(&frame, h225::kUserUser, &element) != h225::kQ931Decoded) return true;
  h225::BeginUserInformation(reader, frame, element);
  return Compare<h225::H323UserInformation>(reader, [&](auto& record, DecodeObserver& faults) {
    return ObserveUserInformation(record, octets, frameLength, faults);
  });
}

}  // namespace kelvra::test
