#include "decode/family_text.h"
#include "formats/formats.h"
#include "text/time_text.h"
#include "text/utf8.h"

namespace {

class JsonFormatter : public Formatter {
 public:
  std::string Print(const Message& message, const Decoded& decoded) override {
    Json line = Json::object();
    if (const auto& origin = message.origin) {
      line["frame"] = origin->frame;
      line["time"] = IsoTime(origin->microseconds);
      line["source"] = ToText(origin->source);
      line["destination"] = ToText(origin->destination);
    }
    line["family"] = FamilyKeyword(message.family);
    line["name"] = decoded.name.empty() ? Json() : Json(decoded.name);
    line["result"] = decoded.result ? Json(*decoded.result) : Json();
    line["ok"] = decoded.ok;
    line["octets"] = message.octets.size();
    std::string text = line.dump();
    text.back() = ',';  // instead of the closing brace
    text += "\"message\":";
    text += decoded.json;
    text += '}';
    return Printable(text) + "\n";
  }
};

}  // namespace

std::unique_ptr<Formatter> MakeJson() { return std::make_unique<JsonFormatter>(); }
