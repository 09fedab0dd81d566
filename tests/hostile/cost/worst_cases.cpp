// Decodes and releases each hostile message at growing sizes. Run alone, it prints the time of each; under callgrind it
// records the instructions of each for check_cost.py.
//
//   kelvra_worst_cases [CORPORA]
//
// With CORPORA it prints instead the highest cost of a message that fuzzing has left in CORPORA/FAMILY.
#include <valgrind/callgrind.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "families.h"
#include "hostile/hostile_messages.h"
#include "hostile/message_cost.h"

namespace kelvra::test {
namespace {

// The largest size that all exports accept, and how often it is halved.
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

// The best of several rounds, in milliseconds.
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

// Each hostile message at each size.
void MeasureHostileMessages() {
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
}

// Keeps the larger number in `most`, and its message in `name`.
template <class Number>
void KeepMost(Number& most, Number value, std::string& name, const Message& message) {
  if (value <= most) return;
  most = value;
  name = message.name;
}

// The highest cost of a message in the folder, and its name.
void MeasureCorpus(Family family, const std::filesystem::path& folder) {
  size_t messages = 0;
  MessageCost most{};
  double milliseconds = 0;
  double claimedForEach = 0;
  std::string slowest, rereading, claiming, amplifying;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::vector<uint8_t> octets{std::istreambuf_iterator<char>(file), {}};
    const Message message{family, entry.path().filename().string(), octets};
    const MessageCost cost = CostOf(family, octets);
    KeepMost(most.reread, cost.reread, rereading, message);
    KeepMost(most.claimed, cost.claimed, claiming, message);
    KeepMost(claimedForEach, cost.claimed / static_cast<double>(octets.size()), amplifying, message);
    KeepMost(milliseconds, TimeOf(message), slowest, message);
    ++messages;
  }
  std::printf("%s: %zu messages\n", folder.filename().c_str(), messages);
  std::printf("  %10u octets read again          %s\n", most.reread, rereading.c_str());
  std::printf("  %10u octets claimed             %s\n", most.claimed, claiming.c_str());
  std::printf("  %10.0f octets claimed for each    %s\n", claimedForEach, amplifying.c_str());
  std::printf("  %10.3f ms                         %s\n", milliseconds, slowest.c_str());
}

}  // namespace
}  // namespace kelvra::test

int main(int argc, char** argv) {
  using namespace kelvra::test;
  if (argc == 1) {
    MeasureHostileMessages();
    return 0;
  }
  const std::filesystem::path corpora = argv[1];
  MeasureCorpus(Family::kRas, corpora / Ras::kName);
  MeasureCorpus(Family::kQ931, corpora / Q931::kName);
  MeasureCorpus(Family::kH245, corpora / H245::kName);
  return 0;
}
