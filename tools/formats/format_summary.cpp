#include <algorithm>

#include "decode/family_text.h"
#include "formats/details.h"
#include "formats/formats.h"
#include "text/time_text.h"

namespace {

// Grows with what it has held, so that long addresses disturb few lines.
class Column {
 public:
  explicit Column(size_t width) : width_(width) {}

  std::string Fill(std::string text) {
    width_ = std::max(width_, text.size());
    text.resize(width_, ' ');
    return text;
  }

 private:
  size_t width_;
};

class SummaryFormatter : public Formatter {
 public:
  std::string Print(const Message& message, const Decoded& decoded) override {
    std::string line = message.origin ? OriginText(*message.origin) : NumberText();
    const size_t indent = line.size();
    line += MessageText(message.family, decoded);
    if (message.family == Family::kQ931) {
      for (const Decoded& tunnelled : DecodeTunnelled(decoded.message)) {
        line += std::string(indent - 2, ' ') + "+ " + MessageText(Family::kH245, tunnelled);
      }
    }
    return line;
  }

 private:
  std::string OriginText(const Origin& origin) {
    return ClockTime(origin.microseconds) + "  " + source_.Fill(ToText(origin.source)) + " -> " +
           destination_.Fill(ToText(origin.destination)) + "  ";
  }

  std::string NumberText() { return number_.Fill(std::to_string(++count_)) + "  "; }

  std::string MessageText(Family family, const Decoded& decoded) {
    std::string label = FamilyLabel(family);
    label.resize(kLabelWidth, ' ');
    std::string text = label + title_.Fill(MessageTitle(family, decoded)) + "  " + Details(family, decoded);
    if (!decoded.ok) text += "  [" + Fault(family, decoded) + "]";
    text.erase(text.find_last_not_of(' ') + 1);
    return text + "\n";
  }

  static constexpr size_t kLabelWidth = 7;
  static constexpr size_t kV4Width = 21;
  static constexpr size_t kTitleWidth = 34;

  Column number_{3};
  Column source_{kV4Width};
  Column destination_{kV4Width};
  Column title_{kTitleWidth};
  uint64_t count_ = 0;
};

}  // namespace

std::unique_ptr<Formatter> MakeSummary() { return std::make_unique<SummaryFormatter>(); }
