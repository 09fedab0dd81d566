#include "decode/family_text.h"
#include "decode/json_path.h"
#include "formats/formats.h"
#include "text/concat.h"
#include "text/time_text.h"
#include "text/utf8.h"

namespace {

std::string Indented(size_t depth, const std::string& text) { return std::string(2 * depth, ' ') + text + "\n"; }

std::string Scalar(const Json& value) {
  return value.is_string() ? Concat({"\"", Printable(value.get_ref<const std::string&>()), "\""}) : value.dump();
}

void PrintMember(const std::string& label, const Json& value, size_t depth, std::string& text);

void PrintMembers(const Json& object, size_t depth, std::string& text) {
  for (const auto& [name, value] : object.items()) PrintMember(name, value, depth, text);
}

void PrintElements(const Json& list, size_t depth, std::string& text) {
  size_t index = 0;
  for (const Json& element : list) {
    const std::string label = Concat({"[", std::to_string(index++), "]"});
    // A CHOICE stands on the line of its index.
    if (element.is_object() && element.size() == 1) {
      PrintMember(label + " " + Alternative(element), Chosen(element), depth, text);
    } else {
      PrintMember(label, element, depth, text);
    }
  }
}

std::string Annotation(const Json& object) {
  if (object.empty()) return " {}";
  if (Chosen(object).is_object()) return {};
  const auto endpoint = ToEndpoint(object);
  return endpoint ? Concat({"  (", ToText(*endpoint), ")"}) : std::string();
}

void PrintMember(const std::string& label, const Json& value, size_t depth, std::string& text) {
  if (value.is_object()) {
    text += Indented(depth, label + Annotation(value));
    PrintMembers(value, depth + 1, text);
  } else if (value.is_array()) {
    text += Indented(depth,
                     Concat({label, ": ", std::to_string(value.size()), value.size() == 1 ? " element" : " elements"}));
    PrintElements(value, depth + 1, text);
  } else if (value.is_null()) {
    text += Indented(depth, label);
  } else {
    text += Indented(depth, label + ": " + Scalar(value));
  }
}

class TreeFormatter : public Formatter {
 public:
  std::string Print(const Message& message, const Decoded& decoded) override {
    std::string text = Header(message, decoded) + ", " + std::to_string(message.octets.size()) + " octets\n";
    PrintMembers(decoded.message, 1, text);
    if (message.family == Family::kQ931) PrintTunnelled(decoded.message, text);
    return text + "\n";
  }

 private:
  std::string Header(const Message& message, const Decoded& decoded) {
    std::string text = "message " + std::to_string(++count_);
    if (const auto& origin = message.origin) {
      text = "frame " + std::to_string(origin->frame) + "  " + IsoTime(origin->microseconds) + "  " +
             ToText(origin->source) + " -> " + ToText(origin->destination);
    }
    return text + "  " + Title(message.family, decoded);
  }

  static std::string Title(Family family, const Decoded& decoded) {
    const std::string title = Concat({FamilyLabel(family), " ", MessageTitle(family, decoded)});
    return decoded.ok ? title : Concat({title, " [", Fault(family, decoded), "]"});
  }

  static void PrintTunnelled(const Json& message, std::string& text) {
    for (const Decoded& tunnelled : DecodeTunnelled(message)) {
      text += Indented(1, Concat({"tunnelled ", Title(Family::kH245, tunnelled)}));
      PrintMembers(tunnelled.message, 2, text);
    }
  }

  uint64_t count_ = 0;
};

}  // namespace

std::unique_ptr<Formatter> MakeTree() { return std::make_unique<TreeFormatter>(); }
