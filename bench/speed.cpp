// Times decoding and releasing each workload. Library and floor alternate, so that both run under the same conditions,
// and the fastest round of each counts.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <limits>

#include "codec_run.h"

namespace kelvra::bench {
namespace {

using Clock = std::chrono::steady_clock;

// The least octets per round, so that reading the clock is negligible.
constexpr uint64_t kRoundOctets = 20000;

class FastestRound {
 public:
  // Returns the duration of `run` in seconds.
  template <class Run>
  double Time(Run run) {
    const Clock::time_point start = Clock::now();
    run();
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    fastest_ = std::min(fastest_, seconds);
    return seconds;
  }
  double Seconds() const { return fastest_; }

 private:
  double fastest_ = std::numeric_limits<double>::max();
};

size_t Repeats(const Workload& workload) { return static_cast<size_t>(kRoundOctets / workload.Octets()) + 1; }

void Report(benchmark::State& state, const Workload& workload, const FastestRound& library) {
  const double messages = static_cast<double>(workload.messages.size() * Repeats(workload));
  const double octets = static_cast<double>(workload.Octets() * Repeats(workload));
  state.counters["ns/message"] = library.Seconds() / messages * 1e9;
  state.counters["messages/s"] = messages / library.Seconds();
  state.counters["octets/s"] = octets / library.Seconds();
}

void DecodeAndRelease(benchmark::State& state, const Workload& workload) {
  AnyRecord record;
  std::vector<void*> blocks(MostBlocks(workload));
  const size_t repeats = Repeats(workload);
  FastestRound library, floor;
  for ([[maybe_unused]] auto _ : state) {
    state.SetIterationTime(library.Time([&] {
      for (size_t i = 0; i < repeats; ++i) {
        for (const Message& message : workload.messages) {
          Decode(record, message);
          Release(record, message);
        }
      }
    }));
    floor.Time([&] {
      for (size_t i = 0; i < repeats; ++i) {
        for (const Message& message : workload.messages) RunFloor(record, message, blocks);
      }
    });
  }
  Report(state, workload, library);
  state.counters["floor ns"] =
      floor.Seconds() / static_cast<double>(workload.messages.size() * Repeats(workload)) * 1e9;
  state.counters["ratio"] = library.Seconds() / floor.Seconds();
}

// Decoding or releasing alone, with one record per message.
void Alone(benchmark::State& state, const Workload& workload, bool decoding) {
  std::vector<AnyRecord> records(workload.messages.size() * Repeats(workload));
  FastestRound decode, release;
  const auto each = [&](auto run) {
    for (size_t i = 0; i < records.size(); ++i) run(records[i], workload.messages[i % workload.messages.size()]);
  };
  for ([[maybe_unused]] auto _ : state) {
    const double decoded = decode.Time([&] { each(Decode); });
    const double released = release.Time([&] { each(Release); });
    state.SetIterationTime(decoding ? decoded : released);
  }
  Report(state, workload, decoding ? decode : release);
}

void Register(const Workload& workload) {
  const auto add = [&workload](const std::string& what, auto run) {
    benchmark::RegisterBenchmark((workload.name + "/" + what).c_str(), run)->UseManualTime();
  };
  add("both", [&workload](benchmark::State& state) { DecodeAndRelease(state, workload); });
  add("decode", [&workload](benchmark::State& state) { Alone(state, workload, true); });
  add("release", [&workload](benchmark::State& state) { Alone(state, workload, false); });
}

}  // namespace
}  // namespace kelvra::bench

int main(int count, char** arguments) {
  const std::vector<kelvra::bench::Workload> workloads = kelvra::bench::LoadWorkloads(KELVRA_WORKLOAD);
  for (const kelvra::bench::Workload& workload : workloads) kelvra::bench::Register(workload);
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
