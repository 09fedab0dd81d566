#include "observer/observer.h"

#include <algorithm>
#include <utility>

#include "h225/call/q931_frame.h"
#include "h225/common/protocol_version.h"
#include "observer/observed_reader.h"

namespace kelvra {
namespace {

constexpr uint32_t kProtocolIdentifierArcs = 6;  // itu-t recommendation h 2250 version N
constexpr uint32_t kLastVersion = 4;             // whose additions the descriptions know

}  // namespace

void ObservedReader::Begin(const kelvra::Component& component, bool hasBits) {
  // The enclosing component moved the reader to its end, for example at the index of a CHOICE.
  if (!isStopped_ && cause != PerCause::kNone && !steps_.empty()) Report(cause, steps_.back().component->firstBit);
  const uint64_t endOfOpenType = std::min(EndAround(), std::exchange(endOfNext_, kNoOpenType));
  uint32_t index = 0;
  if (!steps_.empty()) {
    Step& holder = steps_.back();
    if (component.name == nullptr) index = holder.elements++;
    if (holder.isAtAdditions) SettleUnknownAdditions(holder);
  }
  Step& step = steps_.emplace_back();
  step.component = &component;
  step.index = index;
  step.isRead = !isStopped_;
  step.end = endOfOpenType;
  observer_.Begin(component);
  if (isStopped_ || !hasBits) return;
  if (PerAtEnd(*this)) {
    Report(PerCause::kEndOfMessage, component.firstBit);
  } else if (component.firstBit >= step.end) {
    Report(PerCause::kEndOfOpenType, component.firstBit);
  }
}

void ObservedReader::End(const kelvra::Component& component, uint64_t endOfOctets) {
  if (!isStopped_ && endOfOctets > Bit()) Report(PerCause::kEndOfMessage, component.firstBit);
  // This component moved the reader to its end, and nothing has reported it yet.
  if (!isStopped_ && cause != PerCause::kNone) Report(cause, component.firstBit);
  if (!isStopped_ && Bit() > steps_.back().end) Report(PerCause::kEndOfOpenType, component.firstBit);
  const bool isRead = steps_.back().isRead;
  const uint64_t endBit = BoundedBit();
  steps_.pop_back();
  observer_.End(component, endBit, isRead);
}

void ObservedReader::Stop(PerCause reason) {
  if (!isStopped_) Report(reason, steps_.empty() ? Bit() : steps_.back().component->firstBit);
}

void ObservedReader::LeftOpenType() {
  if (!isStopped_) {
    // An open type that claims more octets than are left carries the reader past the end.
    if (position > end) Report(PerCause::kLengthPastEnd, Bit());
    return;
  }
  if (PerAtEnd(*this) || Bit() > EndAround()) return;
  isStopped_ = false;
  cause = PerCause::kNone;
  observer_.Resumed(Bit());
}

void ObservedReader::BeganAdditions(int32_t counted) {
  if (!rules_.countsAdditionsApart) return;
  Step& step = steps_.back();
  step.isAtAdditions = true;
  step.unknown = counted;
  sharedCount_ = extensionPresentCount;
  extensionPresentCount = kUnset;
}

// By now an H.225.0 SEQUENCE has set the shared counter to its own count; an H.245 SEQUENCE does not.
void ObservedReader::SettleUnknownAdditions(Step& step) {
  step.isAtAdditions = false;
  if (extensionPresentCount == kUnset) {
    extensionPresentCount = sharedCount_;
  } else {
    step.unknown = extensionPresentCount;
  }
}

int32_t ObservedReader::UnknownAdditions(int32_t counted) {
  Step& step = steps_.back();
  if (step.isAtAdditions) SettleUnknownAdditions(step);
  if (step.unknown < 0 || step.unknown == counted) return counted;
  Depart();
  return step.unknown;
}

void ObservedReader::Report(PerCause reason, uint64_t bit) {
  isStopped_ = true;
  for (Step& step : steps_) step.isRead = false;
  const uint64_t reached = reason == PerCause::kEndOfOpenType ? steps_.back().end : Reached();
  observer_.Stopped({Path(), bit, std::max(bit, reached), reason});
}

uint64_t ObservedReader::Reached() const {
  if (!PerAtEnd(*this) || stoppedAt == nullptr) return 0;
  return BitOf(stoppedAt);
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

int32_t PerCountUnknownAdditions(ObservedReader& reader, int32_t additions) {
  const int32_t unknown = PerCountUnknownAdditions(static_cast<PerReader&>(reader), additions);
  reader.BeganAdditions(unknown);
  return unknown;
}

void SkipOpenTypes(ObservedReader& reader, int32_t count) {
  PerSkipOpenTypes(reader, reader.UnknownAdditions(count));
  reader.LeftOpenType();
}

Status h225::DecodeKind(ObjectIdentifierValue& value, ObservedReader& reader, RegistrationProtocolIdentifierKind) {
  if (!reader.Rules().readsLaterVersions) return ReadRegistrationProtocolIdentifier(value, reader);
  ReadProtocolIdentifier(value, reader);
  const bool namesVersion = value.count == kProtocolIdentifierArcs && value.arcs != nullptr;
  const uint32_t version = namesVersion ? value.arcs[kProtocolIdentifierArcs - 1] : 0;
  if (version == 0) {
    PerMoveToEnd(reader, PerCause::kUnknownVersion);
    return kUnsupportedVersion;
  }
  if (version > kLastVersion) reader.Depart();
  reader.senderVersion = static_cast<int32_t>(std::min(version, kLastVersion));
  return kDecoded;
}

namespace {

template <class Record>
DecodeEnd Observe(Record& record, const PerReader& reader, DecodeObserver& observer, const ObserverRules& rules) {
  ObservedReader observed(reader, observer, rules);
  Status status = kDecoded;
  {
    const ObservedReader::Component message(observed, "", record, asn1::DefinedType());
    status = Decode(record, observed);
  }
  return {status, observed.Bit(), PerAtEnd(observed), observed.Departed()};
}

}  // namespace

DecodeEnd ObserveRas(h225::RasMessageRecord& record, const uint8_t* buffer, uint32_t length, DecodeObserver& observer,
                     const ObserverRules& rules) {
  return Observe(record, PerReaderOver(buffer, length), observer, rules);
}

DecodeEnd ObserveUserInformation(h225::H323UserInformation& record, const uint8_t* buffer, int32_t length,
                                 DecodeObserver& observer) {
  const h225::Q931Frame frame = h225::FrameOf(buffer, length);
  h225::Q931Element element{};
  if (h225::FindQ931Element(&frame, h225::kUserUser, &element) != h225::kQ931Decoded) return {kExhausted, 0, true};
  PerReader reader;
  h225::BeginUserInformation(reader, frame, element);
  return Observe(record, reader, observer, {});
}

DecodeEnd ObserveUserInformation(h225::H323UserInformation& record, const uint8_t* octets, uint32_t length,
                                 DecodeObserver& observer, const ObserverRules& rules) {
  PerReader reader;
  PerReaderInit(reader, octets, length);
  return Observe(record, reader, observer, rules);
}

DecodeEnd ObserveH245(h245::H245MessageRecord& record, const uint8_t* buffer, uint32_t length, DecodeObserver& observer,
                      const ObserverRules& rules) {
  return Observe(record, PerReaderOver(buffer, length), observer, rules);
}

}  // namespace kelvra
