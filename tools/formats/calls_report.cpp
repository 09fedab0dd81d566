// Prints calls instead of messages.
#include <map>
#include <unordered_set>
#include <utility>

#include "calls/call_tracker.h"
#include "calls/words.h"
#include "formats/calls.h"

namespace {

// The output of ended calls that wait for an earlier call to end.
constexpr size_t kMostWaitingOctets = 0x4000000;

class CallReport : public Formatter, private CallListener {
 public:
  CallReport(std::unique_ptr<CallFormatter> formatter, const Filter& filter, CallOrder order, Output::Write write)
      : formatter_(std::move(formatter)), filter_(filter), order_(order), tracker_(*this), write_(std::move(write)) {
    formatter_->Begin(ready_);
  }

  CallReport(const CallReport&) = delete;
  CallReport& operator=(const CallReport&) = delete;

  void Print(const Message& message, const DecodedMessage& decoded, std::string& text) override {
    PrintInto(text, [&] {
      const bool is_wanted = filter_.WantsMessage(message, decoded);
      const auto calls = tracker_.OnMessage(message, decoded, is_wanted && formatter_->NeedsMessages());
      if (is_wanted) wanted_.insert(calls.begin(), calls.end());
    });
  }

  void OnMediaPacket(const Origin& origin, uint8_t payload_type) override {
    tracker_.OnMediaPacket(origin, payload_type);
  }

  void OnRefusedConnection(const Origin& origin) override { tracker_.OnRefusedConnection(origin); }

  void Finish(std::string& text) override {
    PrintInto(text, [&] {
      tracker_.Close();
      formatter_->Finish(text);
    });
  }

 private:
  // Runs `action` with calls that end meanwhile printed straight into the text.
  template <class Action>
  void PrintInto(std::string& text, Action action) {
    text += std::exchange(ready_, {});
    Output output(text, write_);
    output_ = &output;
    action();
    output_ = &between_;
  }

  void OnCallEnded(const Call& call) override {
    const bool is_next = order_ == CallOrder::kByEnd || call.order == next_;
    std::string late;
    Output waiting(late);
    if (Wants(call)) formatter_->Print(call, is_next ? *output_ : waiting);
    wanted_.erase(&call);
    if (is_next) {
      next_ = call.order + 1;
    } else {
      waiting_octets_ += late.size();
      waiting_.emplace(call.order, std::move(late));
    }
    while (!waiting_.empty() && (waiting_.begin()->first <= next_ || waiting_octets_ > kMostWaitingOctets)) TakeFirst();
  }

  void TakeFirst() {
    const auto first = waiting_.extract(waiting_.begin());
    next_ = std::max(next_, first.key() + 1);
    waiting_octets_ -= first.mapped().size();
    output_->Text() += first.mapped();
  }

  bool Wants(const Call& call) const {
    if (filter_.faulty && Faults(call).empty()) return false;
    const bool has_wanted = wanted_.contains(&call) || (call.signalling.empty() && HasWantedRefusal(call));
    return has_wanted && filter_.WantsCall(call) == Wanted::kYes;
  }

  // A refused connection has no message.
  bool HasWantedRefusal(const Call& call) const {
    for (const Origin& refused : call.refusedConnections) {
      if (filter_.WantsConnection(refused)) return true;
    }
    return false;
  }

  std::unique_ptr<CallFormatter> formatter_;
  const Filter& filter_;
  CallOrder order_;
  CallTracker tracker_;
  std::unordered_set<const Call*> wanted_;  // calls with at least one wanted message
  std::map<uint64_t, std::string> waiting_;
  size_t waiting_octets_ = 0;
  uint64_t next_ = 0;  // the next call in order
  std::string ready_;  // what was printed between messages
  Output between_{ready_};
  Output* output_ = &between_;
  Output::Write write_;
};

}  // namespace

std::unique_ptr<Formatter> MakeCallReport(std::unique_ptr<CallFormatter> formatter, const Filter& filter,
                                          CallOrder order, Output::Write write) {
  return std::make_unique<CallReport>(std::move(formatter), filter, order, std::move(write));
}
