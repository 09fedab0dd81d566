#include "h225/call/q931_frame.h"

#include "codec/trace.h"
#include "per/decoder.h"
#include "record/release.h"

namespace kelvra::h225 {
namespace {

constexpr uint32_t kTpktHeader = 4;
constexpr uint16_t kFirstElement = 5;

enum Q931ElementIdentifier : uint8_t {
  kBearerCapability = 0x04,
  kCause = 0x08,
  kCallIdentity = 0x10,
  kCallState = 0x14,
  kProgressIndicator = 0x1E,
  kNotificationIndicator = 0x27,
  kDateTime = 0x29,
  kKeypadFacility = 0x2C,
  kSignal = 0x34,
  kCallingPartyNumber = 0x6C,
  kCallingPartySubaddress = 0x6D,
  kCalledPartyNumber = 0x70,
  kCalledPartySubaddress = 0x71,
};

void Trace(int32_t severity, int32_t reason, int32_t line) {
  CodecTrace(kTraceFrame, severity, reason, kSourceFrame, line);
}

// Iterates over the information elements of a frame in their order.
class ElementWalk {
 public:
  explicit ElementWalk(const Q931Frame& frame) : frame_(frame) {}

  // Finds the next element with contents whose header and length fit the frame length; skips single-octet
  // elements. False if there is none.
  bool Next(uint8_t& identifier, Q931Element& element) {
    // The position wraps at 16 bits; a walk of more steps than positions runs in circles.
    while (steps_ < frame_.length && position_ < frame_.length) {
      ++steps_;
      const uint16_t position = position_;
      identifier = frame_.At(position);
      if (identifier >= 0x80) {
        position_ = static_cast<uint16_t>(position + 1);
        continue;
      }
      const uint32_t header = identifier == kUserUser ? 3 : 2;
      const uint32_t high = identifier == kUserUser ? frame_.At(position + uint32_t{1}) : uint8_t{0};
      element = {position, static_cast<uint16_t>(high << 8 | frame_.At(position + header - 1))};
      position_ = static_cast<uint16_t>(position + header + element.length);
      // Compared with the whole frame, not with the rest of it.
      if (header + element.length <= frame_.length) return true;
    }
    return false;
  }

 private:
  const Q931Frame& frame_;
  uint32_t steps_ = 0;
  uint16_t position_ = kFirstElement;  // regardless of the claimed call reference length
};

// The first element of each identifier, found in one pass over the frame.
class FirstElements {
 public:
  explicit FirstElements(const Q931Frame& frame) {
    ElementWalk walk(frame);
    uint8_t identifier = 0;
    Q931Element element{};
    while (walk.Next(identifier, element)) {
      if (!Holds(identifier)) elements_[identifier] = element;
      held_[identifier / 32] |= uint32_t{1} << identifier % 32;
    }
  }

  // `identifier` must be below kIdentifiers.
  const Q931Element* Find(uint8_t identifier) const { return Holds(identifier) ? &elements_[identifier] : nullptr; }

 private:
  static constexpr uint32_t kIdentifiers = 128;  // elements from 0x80 have a single octet

  bool Holds(uint8_t identifier) const { return (held_[identifier / 32] >> identifier % 32 & 1) != 0; }

  uint32_t held_[kIdentifiers / 32] = {};
  Q931Element elements_[kIdentifiers];  // set only if held
};

// Copies the information elements of one frame into its cleared record.
class ElementCopier {
 public:
  ElementCopier(Q931MessageRecord& record, const Q931Frame& frame, const FirstElements& elements)
      : record_(record), frame_(frame), elements_(elements) {}

  // One octet of the contents, whatever their length.
  uint8_t Octet(uint8_t identifier, uint32_t index, Q931Presence bit) {
    const Q931Element* element = elements_.Find(identifier);
    if (element == nullptr) return 0;
    record_.presenceMask |= bit;
    return frame_.At(element->position + uint32_t{2} + index);
  }

  // Copies the contents after their first `skipped` octets if 1 to `room` are left. Returns how many.
  uint8_t Octets(uint8_t identifier, uint32_t skipped, uint8_t* octets, uint32_t room, Q931Presence bit) {
    const Q931Element* element = elements_.Find(identifier);
    if (element == nullptr) return 0;
    if (element->length <= skipped || element->length - skipped > room) return 0;
    const uint32_t count = element->length - skipped;
    for (uint32_t i = 0; i < count; ++i) octets[i] = frame_.At(element->position + 2 + skipped + i);
    record_.presenceMask |= bit;
    return static_cast<uint8_t>(count);
  }

 private:
  Q931MessageRecord& record_;
  const Q931Frame& frame_;
  const FirstElements& elements_;
};

// A record keeps neither the type-of-number octet of a number nor the type of a subaddress, nor a redirecting number.
// A sending complete is a single-octet element, and so never found.
void CopyElements(Q931MessageRecord& m, const Q931Frame& frame, const FirstElements& elements) {
  ElementCopier copy(m, frame, elements);
  copy.Octets(kCallingPartyNumber, 1, m.callingPartyNumber, 32, kCallingPartyNumberPresent);
  copy.Octets(kCalledPartyNumber, 1, m.calledPartyNumber, 32, kCalledPartyNumberPresent);
  m.causeValue = copy.Octet(kCause, 1, kCausePresent);
  m.bearerCapabilityLength = copy.Octets(kBearerCapability, 0, m.bearerCapability, 12, kBearerCapabilityPresent);
  m.callState = copy.Octet(kCallState, 0, kCallStatePresent);
  copy.Octets(kDateTime, 0, m.dateTime, 6, kDateTimePresent);
  m.notificationIndicator = copy.Octet(kNotificationIndicator, 0, kNotificationIndicatorPresent);
  copy.Octets(kKeypadFacility, 0, m.keypadFacility, 34, kKeypadFacilityPresent);
  m.progressIndicatorLength = copy.Octets(kProgressIndicator, 0, m.progressIndicator, 2, kProgressIndicatorPresent);
  m.signalValue = copy.Octet(kSignal, 0, kSignalPresent);
  m.callIdentityLength = copy.Octets(kCallIdentity, 0, m.callIdentity, 10, kCallIdentityPresent);
  m.calledPartySubaddressLength =
      copy.Octets(kCalledPartySubaddress, 1, m.calledPartySubaddress, 23, kCalledPartySubaddressPresent);
  m.callingPartySubaddressLength =
      copy.Octets(kCallingPartySubaddress, 1, m.callingPartySubaddress, 23, kCallingPartySubaddressPresent);
}

bool DecodeUserInformationElement(H323UserInformation& m, const Q931Frame& frame, const Q931Element& element) {
  PerReader reader;
  BeginUserInformation(reader, frame, element);
  if (Decode(m, reader) == kDecoded && reader.position != reader.end) return true;
  Release(m, ReleaseVisitor(kReleasePath));
  return false;
}

}  // namespace

Q931Frame FrameOf(const uint8_t* buffer, int32_t length) {
  const uint32_t octets = length > 0 ? static_cast<uint32_t>(length) : 0;
  const uint32_t available = octets > kTpktHeader ? octets - kTpktHeader : 0;
  return {available == 0 ? buffer : buffer + kTpktHeader, available,
          static_cast<uint16_t>(static_cast<uint32_t>(length) - kTpktHeader)};
}

void BeginUserInformation(PerReader& reader, const Q931Frame& frame, const Q931Element& element) {
  const uint32_t first = element.position + uint32_t{4};
  PerReaderInit(reader, PerAdvance(frame.octets, first), element.length + uint32_t{1},
                frame.available > first ? frame.available - first : 0);
}

int32_t FindQ931Element(const Q931Frame* frame, uint8_t identifier, Q931Element* element) {
  if (frame == nullptr || frame->octets == nullptr || element == nullptr) {
    Trace(kTraceError, kReasonArgument, __LINE__);
    return kQ931BadArgument;
  }
  ElementWalk walk(*frame);
  uint8_t seen = 0;
  Q931Element candidate{0, element->length};
  bool found = false;
  while (!found && walk.Next(seen, candidate)) found = seen == identifier;
  element->length = candidate.length;
  if (!found) return kQ931Rejected;
  element->position = candidate.position;
  return kQ931Decoded;
}

int32_t DecodeQ931Frame(Q931MessageRecord* record, const uint8_t* buffer, int32_t length) {
  Trace(kTraceEntry, kReasonEntry, __LINE__);
  if (record == nullptr || buffer == nullptr || static_cast<uint16_t>(length) == 0) {
    Trace(kTraceError, kReasonArgument, __LINE__);
    return kQ931BadArgument;
  }
  const Q931Frame frame = FrameOf(buffer, length);
  record->protocolDiscriminator = frame.At(0);
  record->callReferenceLength = frame.At(1);
  record->callReferenceValue = static_cast<uint16_t>(frame.At(2) << 8 | frame.At(3));
  record->messageType = frame.At(4);
  const FirstElements elements(frame);
  CopyElements(*record, frame, elements);

  const Q931Element* userUser = elements.Find(kUserUser);
  if (userUser == nullptr) {
    Trace(kTraceError, kReasonMissingElement, __LINE__);
    return kQ931Rejected;
  }
  if (!DecodeUserInformationElement(record->userInformation, frame, *userUser)) {
    Trace(kTraceError, kReasonDecode, __LINE__);
    return kQ931Rejected;
  }
  record->presenceMask |= kUserInformationPresent;
  return kQ931Decoded;
}

}  // namespace kelvra::h225
