#include "calls/held_messages.h"

#include <algorithm>

void HeldMessages::Add(const Message& message, const std::vector<const Call*>& calls, bool is_wanted) {
  Held held;
  for (const Call* call : calls) held.verdicts.push_back(VerdictOn(*call));
  if (is_wanted && VerdictOn(held) != Wanted::kNo) {
    held.message = message;
    held_.push_back(std::move(held));
  }
  Release();
}

void HeldMessages::OnCallEnded(const Call& call) {
  const auto found = verdicts_.find(&call);
  if (found == verdicts_.end()) return;
  if (*found->second == Wanted::kNotYet) {
    *found->second = Wanted::kNo;
    ++calls_dropped_;
  }
  verdicts_.erase(found);
  Release();
  DropUnwanted();
}

Wanted HeldMessages::VerdictOn(const Held& held) {
  Wanted best = Wanted::kNo;
  for (const Verdict& verdict : held.verdicts) best = std::max(best, *verdict);
  return best;
}

HeldMessages::Verdict HeldMessages::VerdictOn(const Call& call) {
  Verdict& verdict = verdicts_[&call];
  if (!verdict) verdict = std::make_shared<Wanted>(Wanted::kNotYet);
  if (*verdict == Wanted::kNotYet) *verdict = filter_.WantsCall(call);
  return verdict;
}

void HeldMessages::Release() {
  for (; !held_.empty(); held_.pop_front()) {
    const Wanted verdict = VerdictOn(held_.front());
    if (verdict == Wanted::kNotYet) return;
    if (verdict == Wanted::kYes) output_(held_.front().message);
  }
}

// Runs often enough that unwanted messages are never most of a long queue.
void HeldMessages::DropUnwanted() {
  if (calls_dropped_ * 4 < held_.size()) return;
  calls_dropped_ = 0;
  std::erase_if(held_, [](const Held& held) { return VerdictOn(held) == Wanted::kNo; });
}
