// One line per message.
#include "decode/message_text.h"
#include "formats/console_text.h"
#include "formats/details.h"
#include "formats/formats.h"
#include "text/column.h"
#include "text/utf8.h"

namespace {

class SummaryFormatter : public Formatter {
 public:
  explicit SummaryFormatter(const FormatOptions& options) : options_(options), times_(options.times) {}

  void Print(const Message& message, const DecodedMessage& decoded, std::string& text) override {
    if (message.origin) AppendDate(message.origin->microseconds, text);
    const size_t start = text.size();
    ++count_;
    if (message.file) text += Printable(*message.file) + ": ";
    number_.AppendRight(text, std::to_string(message.origin ? message.origin->frame : count_));
    text += "  ";
    if (message.origin) AppendOrigin(*message.origin, text);
    const size_t indent = text.size() - start;
    AppendMessage(decoded, text);
    for (const DecodedMessage& tunnelled : decoded.tunnelled) {
      text.append(indent - 2, ' ');
      text += "+ ";
      AppendMessage(tunnelled, text);
    }
  }

 private:
  void AppendDate(int64_t microseconds, std::string& text) {
    const std::string date = times_.NewDate(microseconds);
    if (date.empty()) return;
    AppendColored(text, Color::kDate, date, options_.isColored);
    text += '\n';
  }

  void AppendOrigin(const Origin& origin, std::string& text) {
    time_.AppendRight(text, times_.Clock(origin.microseconds));
    text += "  ";
    source_.AppendLeft(text, ToText(origin.source));
    text += " -> ";
    destination_.AppendLeft(text, ToText(origin.destination));
    text += "  ";
  }

  void AppendMessage(const DecodedMessage& decoded, std::string& text) {
    const std::string_view label = FamilyLabel(decoded.family);
    text += label;
    text.append(kLabelWidth - label.size(), ' ');
    const std::string title = MessageTitle(decoded);
    AppendColored(text, Color::kTitle, title, options_.isColored);
    text.append(title_.Blanks(title.size()) + 2, ' ');
    text += Details(decoded);
    if (const std::string fault = FaultText(decoded); !fault.empty()) {
      text += "  ";
      AppendColored(text, decoded.IsComplete() ? Color::kRemark : Color::kFault, "[" + Printable(fault) + "]",
                    options_.isColored);
    }
    text.erase(text.find_last_not_of(' ') + 1);
    text += '\n';
  }

  static constexpr size_t kLabelWidth = 7;
  static constexpr size_t kClockWidth = 15;
  static constexpr size_t kV4Width = 21;
  static constexpr size_t kTitleWidth = 34;

  FormatOptions options_;
  TimeColumn times_;
  Column number_{4};
  Column time_{kClockWidth};
  Column source_{kV4Width};
  Column destination_{kV4Width};
  Column title_{kTitleWidth};
  uint64_t count_ = 0;
};

}  // namespace

std::unique_ptr<Formatter> MakeSummary(const FormatOptions& options) {
  return std::make_unique<SummaryFormatter>(options);
}
