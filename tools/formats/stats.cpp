// Prints statistics.
#include <unordered_set>
#include <vector>

#include "calls/call_tracker.h"
#include "calls/statistics.h"
#include "calls/words.h"
#include "decode/message_text.h"
#include "formats/calls.h"
#include "text/column.h"
#include "text/concat.h"
#include "text/utf8.h"

namespace {

// A table of left-aligned names and right-aligned values.
std::string TableText(const std::vector<std::vector<std::string>>& rows) {
  std::vector<Column> columns(rows.empty() ? 0 : rows.front().size(), Column(0));
  for (const auto& row : rows) {
    for (size_t i = 0; i < row.size(); ++i) columns[i].Blanks(row[i].size());
  }
  std::string text;
  for (const auto& row : rows) {
    for (size_t i = 0; i < row.size(); ++i) {
      text += "  ";
      i == 0 ? columns[i].AppendLeft(text, row[i]) : columns[i].AppendRight(text, row[i]);
    }
    text += '\n';
  }
  return text;
}

std::string CountsText(const std::map<std::string, uint64_t>& counts) {
  std::vector<std::vector<std::string>> rows;
  rows.reserve(counts.size());
  for (const auto& [name, count] : counts) rows.push_back({Printable(name), std::to_string(count)});
  return TableText(rows);
}

std::string ResponsesText(const std::map<std::string, Responses>& responses) {
  std::vector<std::vector<std::string>> rows{
      {"request", "sent", "unanswered", "repeated", "rejected", "least", "mean", "most"}};
  for (const auto& [request, known] : responses) {
    const auto time = [&known = known](int64_t value) { return known.answers == 0 ? "-" : Milliseconds(value); };
    rows.push_back({request, std::to_string(known.requests), std::to_string(known.unanswered),
                    std::to_string(known.repeats), std::to_string(known.rejected), time(known.least),
                    time(known.Mean()), time(known.most)});
  }
  return TableText(rows);
}

class StatisticsReport : public Formatter, private CallListener {
 public:
  explicit StatisticsReport(const Filter& filter) : filter_(filter), tracker_(*this) {}

  void Print(const Message& message, const DecodedMessage& decoded, std::string& /*text*/) override {
    const bool is_wanted = filter_.WantsMessage(message, decoded);
    const bool is_counted = is_wanted && (!filter_.faulty || IsFaulty(decoded));
    // Whether its calls are selected may not be known yet.
    if (is_counted && !filter_.SelectsCalls()) statistics_.Add(decoded);
    const auto calls = tracker_.OnMessage(message, decoded, is_counted && filter_.SelectsCalls());
    if (is_wanted) wanted_.insert(calls.begin(), calls.end());
  }

  void OnMediaPacket(const Origin& origin, uint8_t payload_type) override {
    tracker_.OnMediaPacket(origin, payload_type);
  }

  void OnRefusedConnection(const Origin& origin) override {
    tracker_.OnRefusedConnection(origin);
    if (filter_.WantsConnection(origin)) ++refused_;
  }

  void Finish(std::string& text) override {
    tracker_.Close();
    text += Concat({"messages: ", std::to_string(statistics_.messages), ", calls: ", std::to_string(statistics_.calls),
                    ", refused connections: ", std::to_string(refused_), "\n"});
    for (const auto& [family, kinds] : statistics_.byKind) {
      text += Concat({"\n", FamilyLabel(family), "\n", CountsText(kinds)});
    }
    if (!statistics_.faults.empty()) text += Concat({"\nfaults by cause\n", CountsText(statistics_.faults)});
    if (!statistics_.responses.empty()) text += Concat({"\nRAS requests\n", ResponsesText(statistics_.responses)});
  }

 private:
  void OnCallEnded(const Call& call) override {
    if (wanted_.erase(&call) == 0 || filter_.WantsCall(call) != Wanted::kYes) return;
    if (filter_.faulty && Faults(call).empty()) return;
    statistics_.Add(call);
    for (const auto& [message, lines] : call.messages) statistics_.Add(DecodeMessage(message.family, message.octets));
  }

  const Filter& filter_;
  CallTracker tracker_;
  std::unordered_set<const Call*> wanted_;  // calls with at least one wanted message
  Statistics statistics_;
  uint64_t refused_ = 0;
};

}  // namespace

std::unique_ptr<Formatter> MakeStatistics(const Filter& filter) { return std::make_unique<StatisticsReport>(filter); }
