// One line per call.
#include <vector>

#include "calls/words.h"
#include "formats/calls.h"
#include "formats/console_text.h"
#include "text/column.h"
#include "text/concat.h"
#include "text/utf8.h"

namespace {

class CallTable : public CallFormatter {
 public:
  explicit CallTable(const FormatOptions& options) : options_(options) {}

  void Begin(std::string& text) override {
    AppendLine({"#", "start", "from", "to", "setup", "duration", "end"}, "faults", text);
  }

  void Print(const Call& call, Output& output) override {
    if (call.subject == Subject::kOther) return NoteOther(call);
    const Leg* leg = call.FirstLeg();
    const auto time = [](const std::optional<int64_t>& span) { return span ? Seconds(*span) : "-"; };
    AppendLine({std::to_string(call.number), StartText(call), PartyText(call.caller), PartyText(call.called),
                time(leg != nullptr ? leg->SetupTime() : std::nullopt),
                time(leg != nullptr ? leg->Duration() : std::nullopt), EndText(call)},
               Joined(Faults(call), "; "), output.Text());
  }

  void Finish(std::string& text) override {
    if (others_ == 0) return;
    text += Concat({"\noutside calls: ", std::to_string(others_),
                    ", with faults: ", std::to_string(others_ - faultless_), "\n", faulty_others_});
  }

 private:
  static constexpr size_t kColumns = 7;

  void AppendLine(const std::array<std::string, kColumns>& cells, const std::string& last, std::string& text) {
    const size_t start = text.size();
    for (size_t i = 0; i < kColumns; ++i) {
      const std::string cell = Printable(cells[i]);
      is_number_[i] ? columns_[i].AppendRight(text, cell) : columns_[i].AppendLeft(text, cell);
      text += "  ";
    }
    text += Printable(last);
    text.erase(std::max(start, text.find_last_not_of(' ') + 1));
    text += '\n';
  }

  std::string StartText(const Call& call) const {
    const TimeZone zone = ZoneOf(options_.times);
    return Concat({DateText(call.first, zone), " ", ClockTime(call.first, zone)});
  }

  // Most of these are keep-alive registrations, so successful ones are only counted.
  void NoteOther(const Call& call) {
    ++others_;
    const auto faults = Faults(call);
    if (faults.empty()) {
      ++faultless_;
      return;
    }
    faulty_others_ += Printable(Concat({StartText(call), "  ", PartyText(call.caller), "  ", Joined(faults, "; ")}));
    faulty_others_ += '\n';
  }

  FormatOptions options_;
  std::array<Column, kColumns> columns_{Column{3}, Column{26}, Column{16}, Column{16},
                                        Column{9}, Column{10}, Column{40}};
  std::array<bool, kColumns> is_number_{true, false, false, false, true, true, false};
  uint64_t others_ = 0;
  uint64_t faultless_ = 0;
  std::string faulty_others_;
};

}  // namespace

std::unique_ptr<CallFormatter> MakeCallTable(const FormatOptions& options) {
  return std::make_unique<CallTable>(options);
}
