#include "observer/observer.h"

#include "h225/call/q931_frame.h"
#include "observer/observed_reader.h"

namespace kelvra {

void ObservedReader::Begin(const kelvra::Component& component, bool hasBits) {
  uint32_t index = 0;
  if (!steps_.empty() && component.name == nullptr) index = steps_.back().elements++;
  steps_.push_back({&component, 0, index, !isStopped_});
  observer_.Begin(component);
  if (!isStopped_ && hasBits && PerAtEnd(*this)) Report(PerCause::kEndOfMessage, component.firstBit);
}

void ObservedReader::End(const kelvra::Component& component) {
  // A move to the end that nobody has reported yet happened while this component was read.
  if (!isStopped_ && cause != PerCause::kNone) Report(cause, component.firstBit);
  const bool isRead = steps_.back().isRead;
  steps_.pop_back();
  observer_.End(component, Bit(), isRead);
}

void ObservedReader::Stop(PerCause reason) {
  if (!isStopped_) Report(reason, steps_.empty() ? Bit() : steps_.back().component->firstBit);
}

void ObservedReader::LeftOpenType() {
  if (!isStopped_) {
    // The reader is carried past the end by an open type that claims more than there is.
    if (position > end) Report(PerCause::kLengthPastEnd, Bit());
    return;
  }
  if (PerAtEnd(*this)) return;
  isStopped_ = false;
  cause = PerCause::kNone;
  observer_.Resumed(Bit());
}

void ObservedReader::Report(PerCause reason, uint64_t bit) {
  isStopped_ = true;
  for (Step& step : steps_) step.isRead = false;
  observer_.Stopped({Path(), bit, reason});
}

std::string ObservedReader::Path() const {
  std::string path;
  for (const Step& step : steps_) {
    if (step.component->name == nullptr) {
      path += '[' + std::to_string(step.index) + ']';
    } else if (*step.component->name != '\0') {
      if (!path.empty()) path += '.';
      path += step.component->name;
    }
  }
  return path;
}

namespace {

template <class Record>
DecodeEnd Observe(Record& record, const PerReader& reader, DecodeObserver& observer) {
  ObservedReader observed(reader, observer);
  Status status = kDecoded;
  {
    const ObservedReader::Component message(observed, "", record, asn1::DefinedType());
    status = Decode(record, observed);
  }
  return {status, observed.Bit(), PerAtEnd(observed)};
}

// RAS and H.245 keep the low 16 bits of a length.
PerReader ReaderOver(const uint8_t* buffer, uint32_t length) {
  PerReader reader;
  PerReaderInit(reader, buffer, static_cast<uint16_t>(length));
  return reader;
}

}  // namespace

DecodeEnd ObserveRas(h225::RasMessageRecord& record, const uint8_t* buffer, uint32_t length, DecodeObserver& observer) {
  return Observe(record, ReaderOver(buffer, length), observer);
}

DecodeEnd ObserveUserInformation(h225::H323UserInformation& record, const uint8_t* buffer, int32_t length,
                                 DecodeObserver& observer) {
  const h225::Q931Frame frame = h225::FrameOf(buffer, length);
  h225::Q931Element element{};
  if (h225::FindQ931Element(&frame, h225::kUserUser, &element) != h225::kQ931Decoded) return {kExhausted, 0, true};
  PerReader reader;
  h225::BeginUserInformation(reader, frame, element);
  return Observe(record, reader, observer);
}

DecodeEnd ObserveH245(h245::H245MessageRecord& record, const uint8_t* buffer, uint32_t length,
                      DecodeObserver& observer) {
  return Observe(record, ReaderOver(buffer, length), observer);
}

}  // namespace kelvra
