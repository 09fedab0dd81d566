#include "decode/tree.h"

#include "text/hex.h"
#include "text/number.h"
#include "text/utf8.h"

namespace {

// Most names already differ in their first character.
bool IsNamed(const char* name, std::string_view wanted) {
  return *name == wanted.front() && std::string_view(name) == wanted;
}

std::optional<Endpoint> EndpointIn(Node address, std::string_view host_name, std::string_view port_name) {
  const Node host = address[host_name];
  if (!host.Is(NodeKind::kOctets)) return std::nullopt;
  const Node port = address[port_name];
  if (!port.Is(NodeKind::kNumber)) return std::nullopt;
  const auto octets = host.Octets();
  if (octets.size() != 4 && octets.size() != 16) return std::nullopt;
  return MakeEndpoint(octets, static_cast<uint16_t>(*port.Number()));
}

}  // namespace

Node Node::operator[](std::string_view member) const {
  for (const Node child : *this) {
    if (IsNamed(child.data_->name, member)) return child;
  }
  return {};
}

Node Node::Find(std::initializer_list<std::string_view> path) const {
  Node found = *this;
  for (const std::string_view member : path) found = found[member];
  return found;
}

std::optional<int64_t> Node::Number() const {
  if (Is(NodeKind::kNumber) || Is(NodeKind::kBoolean)) return data_->number;
  if (Is(NodeKind::kEnumerated)) return data_->length;
  return std::nullopt;
}

std::string_view Node::Identifier() const {
  return Is(NodeKind::kEnumerated) && data_->identifier != nullptr ? data_->identifier : std::string_view();
}

bool Node::IsEightBitString() const {
  return Is(NodeKind::kCharacters) || Is(NodeKind::kDigits) || Is(NodeKind::kOctets) || Is(NodeKind::kBits) ||
         Is(NodeKind::kFixedBits);
}

std::span<const uint8_t> Node::Octets() const {
  if (!IsEightBitString()) return {};
  const bool isBits = Is(NodeKind::kBits) || Is(NodeKind::kFixedBits);
  return {static_cast<const uint8_t*>(data_->value), isBits ? (data_->length + 7U) / 8 : data_->length};
}

uint32_t Node::BitCount() const { return Is(NodeKind::kBits) || Is(NodeKind::kFixedBits) ? data_->length : 0; }

std::span<const uint16_t> Node::CodeUnits() const {
  if (!Is(NodeKind::kWideCharacters)) return {};
  return {static_cast<const uint16_t*>(data_->value), data_->length};
}

std::span<const uint32_t> Node::Arcs() const {
  if (!Is(NodeKind::kObjectIdentifier)) return {};
  return {static_cast<const uint32_t*>(data_->value), data_->length};
}

std::string Node::Text() const {
  std::string text;
  AppendText(text);
  return text;
}

void Node::AppendText(std::string& text) const {
  static constexpr std::string_view kDigitCharacters = "#*,0123456789???";
  if (data_ == nullptr) return;
  switch (data_->kind) {
    case NodeKind::kRecord:
    case NodeKind::kList:
    case NodeKind::kNull: return;
    case NodeKind::kBoolean: text += data_->number != 0 ? "true" : "false"; return;
    case NodeKind::kNumber: AppendNumber(text, data_->number); return;
    case NodeKind::kEnumerated:
      if (data_->identifier == nullptr) return AppendNumber(text, data_->length);
      text += data_->identifier;
      return;
    case NodeKind::kObjectIdentifier:
      for (const uint32_t& arc : Arcs()) {
        if (&arc != Arcs().data()) text += '.';
        AppendNumber(text, arc);
      }
      return;
    case NodeKind::kCharacters: AppendLatin1(text, Octets()); return;
    case NodeKind::kWideCharacters: AppendUtf16(text, CodeUnits()); return;
    case NodeKind::kDigits:
      for (const uint8_t code : Octets()) text += kDigitCharacters[code & 15];
      return;
    case NodeKind::kOctets:
    case NodeKind::kBits:
    case NodeKind::kFixedBits: AppendHex(text, Octets()); return;
  }
}

std::optional<Endpoint> ToEndpoint(Node address) {
  if (auto endpoint = EndpointIn(address, "ip", "port")) return endpoint;
  if (auto endpoint = EndpointIn(address, "network", "tsapIdentifier")) return endpoint;
  return address.Is(NodeKind::kRecord) && address.Count() == 1 ? ToEndpoint(address.Chosen()) : std::nullopt;
}
