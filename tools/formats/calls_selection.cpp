// Prints the messages that pass the filter.
#include <utility>

#include "calls/call_tracker.h"
#include "calls/held_messages.h"
#include "formats/calls.h"

namespace {

class Selection : public Formatter, private CallListener {
 public:
  Selection(std::unique_ptr<Formatter> formatter, const Filter& filter)
      : formatter_(std::move(formatter)),
        filter_(filter),
        tracker_(*this),
        held_(filter,
              [this](const Message& message) { PrintNow(message, DecodeMessage(message.family, message.octets)); }) {}

  void Print(const Message& message, const DecodedMessage& decoded, std::string& text) override {
    const bool is_wanted = filter_.WantsMessage(message, decoded) && (!filter_.faulty || IsFaulty(decoded));
    if (!filter_.SelectsCalls()) {
      if (is_wanted) PrintNow(message, decoded);
    } else {
      const auto calls = tracker_.OnMessage(message, decoded, false);
      held_.Add(message, calls, is_wanted);
    }
    text += std::exchange(ready_, {});
  }

  void Finish(std::string& text) override {
    tracker_.Close();
    text += std::exchange(ready_, {});
    formatter_->Finish(text);
  }

 private:
  void PrintNow(const Message& message, const DecodedMessage& decoded) { formatter_->Print(message, decoded, ready_); }
  void OnCallEnded(const Call& call) override { held_.OnCallEnded(call); }

  std::unique_ptr<Formatter> formatter_;
  const Filter& filter_;
  CallTracker tracker_;
  HeldMessages held_;
  std::string ready_;
};

}  // namespace

std::unique_ptr<Formatter> MakeSelection(std::unique_ptr<Formatter> formatter, const Filter& filter) {
  return std::make_unique<Selection>(std::move(formatter), filter);
}
