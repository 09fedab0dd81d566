// A call's ladder diagram in text.
#include <algorithm>

#include "calls/ladder_events.h"
#include "calls/sections.h"
#include "calls/words.h"
#include "formats/calls.h"
#include "formats/console_text.h"
#include "text/concat.h"
#include "text/utf8.h"

namespace {

constexpr size_t kTimeWidth = 13;
constexpr size_t kLeastSpacing = 24;
constexpr size_t kArrowWidth = 6;  // added to the label

// One diagram: a lifeline per column, as far apart as the labels need.
class Diagram {
 public:
  Diagram(const Call& call, std::vector<LadderEvent> events)
      : call_(call), events_(std::move(events)), columns_(events_), spacing_(Spacing()) {}

  void Append(std::string& text) const {
    AppendNames(text);
    for (const LadderEvent& event : events_) AppendEvent(event, text);
  }

 private:
  static std::string LabelOf(const LadderEvent& event) {
    return Printable(Concat({event.isTunnelled ? "+ " : "", event.label, event.isMalformed ? " !" : ""}));
  }

  size_t Spacing() const {
    size_t spacing = kLeastSpacing;
    for (const std::string& name : columns_.Names()) spacing = std::max(spacing, name.size() + 2);
    for (const LadderEvent& event : events_) {
      const auto [left, right] = Ends(event);
      const size_t gaps = std::max<size_t>(right - left, 1);
      spacing = std::max(spacing, (LabelOf(event).size() + kArrowWidth + gaps - 1) / gaps);
    }
    return spacing;
  }

  std::pair<size_t, size_t> Ends(const LadderEvent& event) const {
    const size_t source = columns_.IndexOf(event.origin->source);
    const size_t destination = columns_.IndexOf(event.origin->destination);
    return std::minmax(source, destination);
  }

  void AppendNames(std::string& text) const {
    std::string line(kTimeWidth, ' ');
    for (const std::string& name : columns_.Names()) {
      line += name;
      line.append(spacing_ - name.size(), ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + "\n";
  }

  std::string LifeLines() const {
    std::string line;
    for (size_t i = 0; i < columns_.Names().size(); ++i) {
      line += '|';
      if (i + 1 < columns_.Names().size()) line.append(spacing_ - 1, ' ');
    }
    return line;
  }

  void AppendEvent(const LadderEvent& event, std::string& text) const {
    std::string line = Since(call_, event.origin->microseconds);
    line.insert(0, kTimeWidth - 2 - std::min(kTimeWidth - 2, line.size()), ' ');
    text += Concat({line, "  ", ArrowLine(event), "\n"});
    if (!event.fault.empty()) {
      text += Concat({std::string(kTimeWidth, ' '), LifeLines(), "  ! ", Printable(event.fault), "\n"});
    }
  }

  std::string ArrowLine(const LadderEvent& event) const {
    std::string line = LifeLines();
    const auto [left, right] = Ends(event);
    const std::string label = LabelOf(event);
    if (left == right) return Concat({line, "  ", label, " (within ", columns_.Names()[left], ")"});
    const size_t start = left * spacing_ + 1;
    const size_t length = (right - left) * spacing_ - 1;
    std::string arrow(length, '-');
    arrow.replace((length - label.size()) / 2 - 1, label.size() + 2, Concat({" ", label, " "}));
    const bool points_right = columns_.IndexOf(event.origin->source) == left;
    const char head = event.message == nullptr ? 'X' : points_right ? '>' : '<';
    arrow[points_right ? length - 1 : 0] = head;
    return line.replace(start, length, arrow);
  }

  const Call& call_;
  std::vector<LadderEvent> events_;
  LadderColumns columns_;
  size_t spacing_;
};

class Ladder : public CallFormatter {
 public:
  Ladder(const Filter& filter, TimeZone zone) : filter_(filter), zone_(zone) {}

  bool NeedsMessages() const override { return true; }

  void Print(const Call& call, Output& output) override {
    std::string& text = output.Text();
    text += Concat({Printable(Heading(call)), "\n", IsoTime(call.first, zone_), "\n"});
    Diagram(call, LadderEventsOf(call, filter_)).Append(text);
    if (call.subject == Subject::kCall) text += Concat({"end: ", Printable(EndText(call)), "\n"});
    text += '\n';
  }

 private:
  const Filter& filter_;
  TimeZone zone_;
};

}  // namespace

std::unique_ptr<CallFormatter> MakeLadder(const Filter& filter, const FormatOptions& options) {
  return std::make_unique<Ladder>(filter, ZoneOf(options.times));
}
