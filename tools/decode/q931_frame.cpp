#include "decode/q931_frame.h"

namespace {

constexpr uint32_t kTpktHeader = 4;
constexpr uint32_t kFirstElement = kTpktHeader + 5;  // after protocol discriminator, call reference and message type

// A field before the elements. Octets count from the start of the message.
struct Field {
  std::string_view member;
  uint32_t first, end;
};
constexpr std::array<Field, 3> kFields{{
    {"protocolDiscriminator", 4, 5},
    {"callReferenceValue", 6, 8},
    {"messageType", 8, 9},
}};

// Q.931, table 4-3.
struct ElementName {
  std::string_view member;
  uint8_t identifier;
};
constexpr std::array<ElementName, 13> kElements{{
    {"bearerCapability", 0x04},
    {"causeValue", 0x08},
    {"callIdentity", 0x10},
    {"callState", 0x14},
    {"progressIndicator", 0x1E},
    {"notificationIndicator", 0x27},
    {"dateTime", 0x29},
    {"keypadFacility", 0x2C},
    {"signalValue", 0x34},
    {"callingPartyNumber", 0x6C},
    {"callingPartySubaddress", 0x6D},
    {"calledPartyNumber", 0x70},
    {"calledPartySubaddress", 0x71},
}};

}  // namespace

Q931Elements::Q931Elements(std::span<const uint8_t> octets) : octets_(octets) {
  const auto size = static_cast<uint32_t>(octets.size());
  uint32_t position = kFirstElement;
  while (position < size) {
    const uint8_t identifier = octets[position];
    if (identifier >= 0x80) {  // single-octet element
      ++position;
      continue;
    }
    Element element{position, position + (identifier == kUserUser ? 3U : 2U), 0};
    last_ = position;
    if (element.contents <= size) {
      element.length = octets[element.contents - 1];
      if (identifier == kUserUser) element.length |= uint32_t{octets[element.contents - 2]} << 8;
    }
    if (!first_[identifier]) first_[identifier] = element;
    position = element.contents + element.length;
    if (position > size) cutOff_ = element;
  }
}

std::optional<BitRange> Q931Elements::Find(std::string_view member) const {
  for (const Field& field : kFields) {
    if (field.member != member) continue;
    if (field.end > octets_.size()) return std::nullopt;
    return BitRange{field.first * 8, field.end * 8};
  }
  for (const ElementName& name : kElements) {
    if (name.member != member) continue;
    const auto& element = first_[name.identifier];
    if (!element || element->contents + element->length > octets_.size()) return std::nullopt;
    return BitRange{element->position * 8, (element->contents + element->length) * 8};
  }
  return std::nullopt;
}

std::optional<uint32_t> Q931Elements::AnnouncedOctets() const {
  if (octets_.size() < kTpktHeader) return std::nullopt;
  return uint32_t{octets_[2]} << 8 | octets_[3];
}
