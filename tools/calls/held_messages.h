// Messages that wait until it is known whether their calls are wanted; then they go on in their order.
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

  // A message that is wanted for itself goes on where one of its calls is wanted; any message may show that they are.
  void Add(const Message& message, const std::vector<const Call*>& calls, bool is_wanted);
  void OnCallEnded(const Call& call);

 private:
  using Verdict = std::shared_ptr<Wanted>;
  struct Held {
    Message message;
    std::vector<Verdict> verdicts;  // on its calls
  };

  static Wanted VerdictOn(const Held& held);
  Verdict VerdictOn(const Call& call);
  void Release();
  void DropUnwanted();

  const Filter& filter_;
  Output output_;
  std::unordered_map<const Call*, Verdict> verdicts_;
  std::deque<Held> held_;
  size_t calls_dropped_ = 0;  // since the queue was swept
};
