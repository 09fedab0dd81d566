// Decodes and releases each hostile message at growing sizes. By itself it prints the time of each; under
// callgrind it leaves the instructions of each, which check_cost.py judges.
#include <valgrind/callgrind.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "doubles/message_family.h"
#include "hostile/hostile_messages.h"

namespace kelvra::test {
namespace {

// The largest size that all exports take whole, and how often it is halved.
constexpr size_t kLargest = 65535;
constexpr int kHalvings = 2;
constexpr int kRounds = 5;

template <class MessageFamily>
void DecodeAndRelease(const std::vector<uint8_t>& octets) {
  static typename MessageFamily::Record record;
  MessageFamily::Decode(&record, octets.data(), octets.size());
  MessageFamily::Release(&record);
}

void Run(const Message& message) {
  switch (message.family) {
    case Family::kRas: return DecodeAndRelease<Ras>(message.octets);
    case Family::kQ931: return DecodeAndRelease<Q931>(message.octets);
    case Family::kH245: return DecodeAndRelease<H245>(message.octets);
  }
}

// The best of some rounds, in milliseconds.
double TimeOf(const Message& message) {
  using Clock = std::chrono::steady_clock;
  double best = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    const Clock::time_point start = Clock::now();
    Run(message);
    best = std::min(best, std::chrono::duration<double, std::milli>(Clock::now() - start).count());
  }
  return best;
}

void CountInstructionsOf(const Message& message, const std::string& name) {
  Run(message);
  CALLGRIND_TOGGLE_COLLECT;
  Run(message);
  CALLGRIND_TOGGLE_COLLECT;
  CALLGRIND_DUMP_STATS_AT(name.c_str());
}

}  // namespace
}  // namespace kelvra::test

int main() {
  using namespace kelvra::test;
  for (int halved = kHalvings; halved >= 0; --halved) {
    const size_t size = kLargest >> halved;
    for (const Message& message : HostileMessages(size)) {
      if (RUNNING_ON_VALGRIND != 0) {
        CountInstructionsOf(message, std::to_string(size) + " " + message.name);
      } else {
        std::printf("%6zu octets %8.3f ms  %s\n", size, TimeOf(message), message.name.c_str());
      }
    }
  }
  return 0;
}
