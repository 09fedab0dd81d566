#include "formats/json.h"

#include "decode/message_text.h"
#include "formats/formats.h"
#include "text/hex.h"
#include "text/number.h"
#include "text/time_text.h"
#include "text/utf8.h"

namespace {

void AppendHexString(std::string& json, std::span<const uint8_t> octets) {
  json += '"';
  AppendHex(json, octets);
  json += '"';
}

void AppendBits(std::string& json, Node node) {
  json += "{\"value\":";
  AppendHexString(json, node.Octets());
  json += ",\"length\":";
  AppendNumber(json, node.BitCount());
  json += '}';
}

void AppendMembers(std::string& json, Node node) {
  char separator = '{';
  for (const Node child : node) {
    json += separator;
    json += '"';
    json += child.Name();
    json += "\":";
    AppendJson(json, child);
    separator = ',';
  }
  if (separator == '{') json += '{';
  json += '}';
}

void AppendElements(std::string& json, Node node) {
  char separator = '[';
  for (const Node child : node) {
    json += separator;
    AppendJson(json, child);
    separator = ',';
  }
  if (separator == '[') json += '[';
  json += ']';
}

// Writes an object member by member.
class ObjectWriter {
 public:
  explicit ObjectWriter(std::string& json) : json_(json) {}

  void Number(std::string_view name, int64_t value) {
    Name(name);
    AppendNumber(json_, value);
  }
  void Boolean(std::string_view name, bool value) {
    Name(name);
    json_ += value ? "true" : "false";
  }
  void Text(std::string_view name, std::string_view value) {
    Name(name);
    AppendJsonString(json_, value);
  }
  void Null(std::string_view name) {
    Name(name);
    json_ += "null";
  }
  // The caller appends the value next.
  void Name(std::string_view name) {
    json_ += separator_;
    json_ += '"';
    json_ += name;
    json_ += "\":";
    separator_ = ',';
  }
  void Close() { json_ += '}'; }

 private:
  std::string& json_;
  char separator_ = '{';
};

void AppendFault(std::string& json, const MessageFault& fault) {
  ObjectWriter object(json);
  object.Number("octet", static_cast<int64_t>(fault.bit / 8));
  object.Number("bit", static_cast<int64_t>(fault.bit));
  object.Text("member", fault.member);
  object.Text("cause", fault.cause);
  if (fault.resumed) object.Boolean("resumed", true);
  object.Close();
}

void AppendFaults(ObjectWriter& line, std::string& json, const DecodedMessage& decoded) {
  const MessageFault* fault = decoded.Fault();
  if (fault == nullptr) return;
  line.Name("fault");
  AppendFault(json, *fault);
  if (decoded.faults.size() < 2) return;
  line.Name("faults");
  char separator = '[';
  for (const MessageFault& one : decoded.faults) {
    json += separator;
    AppendFault(json, one);
    separator = ',';
  }
  json += ']';
}

// Appends the result of the decode and the members of the message.
void AppendDecoded(ObjectWriter& line, std::string& json, const DecodedMessage& decoded, size_t octets) {
  if (decoded.name.empty()) {
    line.Null("name");
  } else {
    line.Text("name", decoded.name);
  }
  if (decoded.result) {
    line.Number("result", *decoded.result);
  } else {
    line.Null("result");
  }
  line.Boolean("ok", decoded.ok);
  line.Number("octets", static_cast<int64_t>(octets));
  line.Boolean("complete", decoded.IsComplete());
  AppendFaults(line, json, decoded);
  if (decoded.spareOctetsRequired > 0) line.Number("spareOctetsRequired", decoded.spareOctetsRequired);
  line.Name("message");
  if (const Node root = decoded.Root(); root) {
    AppendMembers(json, root);
  } else {
    json += "{}";
  }
}

class JsonFormatter : public Formatter {
 public:
  void Print(const Message& message, const DecodedMessage& decoded, std::string& text) override {
    ObjectWriter line(text);
    if (message.file) line.Text("file", *message.file);
    if (const auto& origin = message.origin) {
      line.Number("frame", static_cast<int64_t>(origin->frame));
      line.Text("time", IsoTime(origin->microseconds));
      line.Text("source", ToText(origin->source));
      line.Text("destination", ToText(origin->destination));
    }
    line.Text("family", FamilyKeyword(message.family));
    AppendDecoded(line, text, decoded, message.octets.size());
    line.Close();
    text += '\n';
  }
};

}  // namespace

void AppendJson(std::string& json, Node node) {
  switch (node.Kind()) {
    case NodeKind::kRecord: return AppendMembers(json, node);
    case NodeKind::kList: return AppendElements(json, node);
    case NodeKind::kNull: json += "null"; return;
    case NodeKind::kBoolean:
    case NodeKind::kNumber: return node.AppendText(json);
    case NodeKind::kEnumerated:
      if (node.Identifier().empty()) return node.AppendText(json);
      return AppendJsonString(json, node.Identifier());
    case NodeKind::kCharacters:
    case NodeKind::kWideCharacters: return AppendJsonString(json, node.Text());
    case NodeKind::kBits: return AppendBits(json, node);
    case NodeKind::kObjectIdentifier:
    case NodeKind::kDigits:
    case NodeKind::kOctets:
    case NodeKind::kFixedBits:
      json += '"';
      node.AppendText(json);
      json += '"';
      return;
  }
}

std::unique_ptr<Formatter> MakeJson() { return std::make_unique<JsonFormatter>(); }
