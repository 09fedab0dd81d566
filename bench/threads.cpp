// Messages per second that several threads decode and release: bench_threads WORKLOAD [MESSAGES [THREADS...]]
//
// Each thread decodes the messages of the workload in turn until it has decoded MESSAGES. Prints threads, messages per
// second, and CPU time per message, which grows if threads wait for each other.
#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "codec_run.h"

namespace kelvra::bench {
namespace {

double ProcessorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void DecodeMany(const std::vector<Workload>& workloads, size_t count) {
  AnyRecord record;
  while (count > 0) {
    for (const Workload& workload : workloads) {
      for (const Message& message : workload.messages) {
        if (count == 0) return;
        Decode(record, message);
        Release(record, message);
        --count;
      }
    }
  }
}

void Measure(const std::vector<Workload>& workloads, size_t count, size_t threads) {
  const double processor = ProcessorSeconds();
  const auto start = std::chrono::steady_clock::now();
  std::vector<std::thread> running;
  for (size_t i = 0; i < threads; ++i) running.emplace_back(DecodeMany, std::cref(workloads), count);
  for (std::thread& thread : running) thread.join();
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
  const auto messages = static_cast<double>(count * threads);
  std::printf("%zu threads: %.0f messages/s, %.0f ns of processor time per message\n", threads,
              messages / passed.count(), (ProcessorSeconds() - processor) / messages * 1e9);
}

}  // namespace
}  // namespace kelvra::bench

int main(int count, char** arguments) {
  if (count < 2) {
    std::fprintf(stderr, "bench_threads WORKLOAD [MESSAGES [THREADS...]]\n");
    return 2;
  }
  const auto workloads = kelvra::bench::LoadWorkloads(arguments[1]);
  const size_t messages = count > 2 ? std::strtoul(arguments[2], nullptr, 10) : 2'000'000;
  for (int i = 3; i < count; ++i) kelvra::bench::Measure(workloads, messages, std::strtoul(arguments[i], nullptr, 10));
  if (count <= 3) {
    for (const size_t threads : {size_t{1}, size_t{2}}) kelvra::bench::Measure(workloads, messages, threads);
  }
  return 0;
}
