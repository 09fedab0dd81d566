// One line per member.
#include <algorithm>
#include <array>
#include <charconv>

#include "decode/message_text.h"
#include "formats/console_text.h"
#include "formats/formats.h"
#include "text/hex.h"
#include "text/number.h"
#include "text/time_text.h"
#include "text/utf8.h"

namespace {

// Text in octets: printable ASCII only, except for NULs at the end.
std::string_view TextIn(Node node) {
  if (!node.Is(NodeKind::kOctets) || node.Name() == "ip" || node.Name() == "network") return {};
  const auto octets = node.Octets();
  std::string_view text(reinterpret_cast<const char*>(octets.data()), octets.size());
  text = text.substr(0, text.find_last_not_of('\0') + 1);
  const bool isText = std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
  return isText && text.size() > 1 ? text : std::string_view();
}

class TreeFormatter : public Formatter {
 public:
  explicit TreeFormatter(const FormatOptions& options) : options_(options), times_(options.times) {}

  void Print(const Message& message, const DecodedMessage& decoded, std::string& text) override {
    text_ = &text;
    PrintHeader(message, decoded);
    for (const Node member : decoded.Root()) PrintMember(member, "", 1);
    if (options_.showsOctets) PrintOctets(message.octets);
    for (const DecodedMessage& tunnelled : decoded.tunnelled) PrintTunnelled(tunnelled);
    text += '\n';
  }

 private:
  static constexpr size_t kGutter = 16;
  static constexpr size_t kLongestPlace = 2 * sizeof "536870911.7";
  static constexpr size_t kOctetsInLine = 16;

  void PrintHeader(const Message& message, const DecodedMessage& decoded) {
    std::string& text = *text_;
    ++count_;
    if (message.file) text += Printable(*message.file) + ": ";
    if (const auto& origin = message.origin) {
      text += "frame ";
      AppendNumber(text, static_cast<int64_t>(origin->frame));
      text += "  ";
      text += times_.Full(origin->microseconds);
      text += "  ";
      text += ToText(origin->source);
      text += " -> ";
      text += ToText(origin->destination);
    } else {
      text += "message ";
      AppendNumber(text, count_);
    }
    text += "  ";
    AppendTitle(decoded);
    text += ", ";
    AppendNumber(text, static_cast<int64_t>(message.octets.size()));
    text += " octets\n";
  }

  void AppendTitle(const DecodedMessage& decoded) {
    std::string& text = *text_;
    text += FamilyLabel(decoded.family);
    text += ' ';
    AppendColored(text, Color::kTitle, MessageTitle(decoded), options_.isColored);
    const std::string fault = FaultText(decoded);
    if (fault.empty()) return;
    text += ' ';
    AppendColored(text, decoded.IsComplete() ? Color::kRemark : Color::kFault, "[" + Printable(fault) + "]",
                  options_.isColored);
  }

  void BeginLine(Node node, size_t depth) {
    if (options_.showsOctets) AppendPlace(node.Bits());
    text_->append(2 * depth, ' ');
  }

  // "12.3-14.7": first and last bit.
  void AppendPlace(BitRange bits) {
    std::array<char, kLongestPlace + 1> place;
    place.fill(' ');
    char* end = place.data();
    if (bits.end > bits.first) {
      end = WriteBit(end, bits.first);
      *end++ = '-';
      end = WriteBit(end, bits.end - 1);
    }
    text_->append(place.data(), std::max<size_t>(kGutter, static_cast<size_t>(end - place.data()) + 1));
  }

  static char* WriteBit(char* place, uint32_t bit) {
    place = std::to_chars(place, place + kLongestPlace, bit / 8).ptr;
    *place++ = '.';
    *place++ = static_cast<char>('0' + bit % 8);
    return place;
  }

  // `before` precedes the name.
  void PrintMember(Node node, std::string_view before, size_t depth) {
    std::string& text = *text_;
    BeginLine(node, depth);
    text += before;
    text += node.Name();
    switch (node.Kind()) {
      case NodeKind::kRecord:
        AppendAnnotation(node);
        text += '\n';
        for (const Node member : node) PrintMember(member, "", depth + 1);
        return;
      case NodeKind::kList:
        text += ": ";
        AppendNumber(text, static_cast<int64_t>(node.Count()));
        text += node.Count() == 1 ? " element\n" : " elements\n";
        return PrintElements(node, depth + 1);
      case NodeKind::kNull: break;
      default:
        text += ": ";
        AppendValue(node);
        break;
    }
    text += '\n';
  }

  void PrintElements(Node list, size_t depth) {
    int64_t index = 0;
    for (const Node element : list) {
      std::string label = "[";
      AppendNumber(label, index++);
      label += ']';
      // A CHOICE shares the line of its index.
      if (element.Is(NodeKind::kRecord) && element.Count() == 1) {
        label += ' ';
        PrintMember(element.Chosen(), label, depth);
      } else {
        PrintMember(element, label, depth);
      }
    }
  }

  void AppendAnnotation(Node record) {
    if (record.Count() == 0) {
      *text_ += " {}";
    } else if (!record.Chosen().Is(NodeKind::kRecord)) {
      if (const auto endpoint = ToEndpoint(record)) *text_ += "  (" + ToText(*endpoint) + ")";
    }
  }

  void AppendValue(Node node) {
    std::string& text = *text_;
    if (node.Is(NodeKind::kBoolean) || node.Is(NodeKind::kNumber)) return node.AppendText(text);
    text += '"';
    if (node.Is(NodeKind::kCharacters) || node.Is(NodeKind::kWideCharacters)) {
      AppendPrintable(text, node.Text());
    } else {
      node.AppendText(text);
    }
    text += '"';
    if (node.Is(NodeKind::kBits)) {
      text += "  (";
      AppendNumber(text, node.BitCount());
      text += node.BitCount() == 1 ? " bit)" : " bits)";
    }
    if (const std::string_view characters = TextIn(node); !characters.empty()) {
      text += "  (\"";
      text += characters;
      text += "\")";
    }
  }

  void PrintOctets(std::span<const uint8_t> octets) {
    for (size_t first = 0; first < octets.size(); first += kOctetsInLine) {
      PrintOctetLine(first, octets.subspan(first, std::min(kOctetsInLine, octets.size() - first)));
    }
  }

  // "    16  00 01 ...  ..": the place of the first octet, all in hexadecimal, and as characters.
  void PrintOctetLine(size_t first, std::span<const uint8_t> line) {
    std::array<char, 3 * kOctetsInLine + 1> digits;
    std::array<char, kOctetsInLine> characters;
    digits.fill(' ');
    for (size_t i = 0; i < line.size(); ++i) {
      WriteHex(&digits[3 * i + (i < kOctetsInLine / 2 ? 1 : 2)], line[i]);
      characters[i] = line[i] >= ' ' && line[i] <= '~' ? static_cast<char>(line[i]) : '.';
    }
    std::string& text = *text_;
    const std::string place = std::to_string(first);
    text.append(place.size() < 6 ? 6 - place.size() : 0, ' ');
    text += place;
    text += ' ';
    text.append(digits.data(), digits.size());
    text += "  ";
    text.append(characters.data(), line.size());
    text += '\n';
  }

  void PrintTunnelled(const DecodedMessage& tunnelled) {
    *text_ += "  tunnelled ";
    AppendTitle(tunnelled);
    *text_ += '\n';
    for (const Node member : tunnelled.Root()) PrintMember(member, "", 2);
  }

  FormatOptions options_;
  TimeColumn times_;
  std::string* text_ = nullptr;
  int64_t count_ = 0;
};

}  // namespace

std::unique_ptr<Formatter> MakeTree(const FormatOptions& options) { return std::make_unique<TreeFormatter>(options); }
