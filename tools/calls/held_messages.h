// Holds messages until it is known whether their calls are wanted, then passes them on in order.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "calls/filter.h"

class HeldMessages {
 public:
  using Output = std::function<void(const Message&)>;
  HeldMessages(const Filter& filter, Output output) : filter_(filter), output_(std::move(output)) {}

  // Passes the message on if it is wanted itself and one of its calls is. Any message may show that a call is wanted.
  void Add(const Message& message, const std::vector<const Call*>& calls, bool is_wanted);
  void OnCallEnded(const Call& call);

 private:
  using Verdict = std::shared_ptr<Wanted>;
  struct Held {
    Message message;
    std::vector<Verdict> verdicts;  // one per call
  };

  static Wanted VerdictOn(const Held& held);
  Verdict VerdictOn(const Call& call);
  void Release();
  void DropUnwanted();

  const Filter& filter_;
  Output output_;
  std::unordered_map<const Call*, Verdict> verdicts_;
  std::deque<Held> held_;
  size_t calls_dropped_ = 0;  // since the last sweep
};
