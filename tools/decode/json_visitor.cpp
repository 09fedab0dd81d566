#include "decode/json_visitor.h"

#include <charconv>
#include <span>

#include "text/hex.h"
#include "text/utf8.h"

namespace {

using kelvra::OctetNotation;

void AppendNumber(std::string& text, int64_t value) {
  char digits[24];
  text.append(digits, std::to_chars(std::begin(digits), std::end(digits), value).ptr);
}

void AppendDigits(std::string& text, std::span<const uint8_t> codes) {
  static const char digits[] = "#*,0123456789???";
  for (const uint8_t code : codes) text += digits[code & 15];
}

}  // namespace

void JsonVisitor::Number(const char* name, int64_t value) {
  Begin(name);
  AppendNumber(text_, value);
}

void JsonVisitor::Boolean(const char* name, uint32_t value) {
  Begin(name);
  text_ += value != 0 ? "true" : "false";
}

void JsonVisitor::EnumeratedValue(uint32_t value, const char* identifier) {
  Begin("");
  if (identifier != nullptr) {
    AppendString(identifier);
  } else {
    AppendNumber(text_, value);
  }
}

void JsonVisitor::Null(const char* name) {
  Begin(name);
  text_ += "null";
}

void JsonVisitor::UnknownExtension(uint32_t index) { Null(("extension-" + std::to_string(index)).c_str()); }

void JsonVisitor::UnknownRoot(uint32_t index) { Null(("unknown-" + std::to_string(index)).c_str()); }

void JsonVisitor::ObjectIdentifier(const char* name, const kelvra::ObjectIdentifierValue& value) {
  Begin(name);
  text_ += '"';
  const uint32_t* arcs = value.arcs;
  for (uint32_t i = 0; arcs != nullptr && i < value.count; ++i) {
    if (i > 0) text_ += '.';
    AppendNumber(text_, arcs[i]);
  }
  text_ += '"';
}

void JsonVisitor::WideCharacters(const char* name, const kelvra::BMPStringValue& value) {
  const uint16_t* units = value.data;
  Begin(name);
  AppendString(FromUtf16({units, units != nullptr ? value.length : 0}));
}

void JsonVisitor::EmbeddedOctets(const char* name, const uint8_t* octets, uint32_t count, OctetNotation notation) {
  Begin(name);
  if (octets == nullptr) count = 0;
  switch (notation) {
    case OctetNotation::kCharacters: AppendString(FromLatin1({octets, count})); return;
    case OctetNotation::kDigits:
      text_ += '"';
      AppendDigits(text_, {octets, count});
      text_ += '"';
      return;
    case OctetNotation::kBits:
      text_ += "{\"value\":";
      AppendHex(octets, count / 8 + (count % 8 != 0 ? 1U : 0U));
      text_ += ",\"length\":";
      AppendNumber(text_, count);
      text_ += '}';
      return;
    case OctetNotation::kFixedBits: AppendHex(octets, count / 8 + (count % 8 != 0 ? 1U : 0U)); return;
    case OctetNotation::kOctets: AppendHex(octets, count); return;
  }
}

void JsonVisitor::Begin(const char* name) {
  Level& level = levels_.back();
  if (name != kElement && *name == '\0') {
    text_.resize(level.start);
    level.isReplaced = true;
    return;
  }
  if (!level.isEmpty) text_ += ',';
  level.isEmpty = false;
  if (name == kElement) return;
  text_ += '"';
  text_ += name;
  text_ += "\":";
}

void JsonVisitor::Open(char bracket) {
  levels_.push_back({text_.size(), true, false});
  text_ += bracket;
}

void JsonVisitor::OpenObject(const char* name) {
  Begin(name);
  Open('{');
}

void JsonVisitor::OpenArray(const char* name) {
  Begin(name);
  Open('[');
}

void JsonVisitor::Close() {
  const Level& level = levels_.back();
  if (!level.isReplaced) text_ += text_[level.start] == '{' ? '}' : ']';
  levels_.pop_back();
}

void JsonVisitor::AppendHex(const uint8_t* octets, uint32_t count) {
  text_ += '"';
  ::AppendHex(text_, {octets, count});
  text_ += '"';
}

void JsonVisitor::AppendString(std::string_view utf8) {
  text_ += '"';
  AppendEscaped(text_, utf8);
  text_ += '"';
}
