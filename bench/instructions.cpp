// Runs each workload once under callgrind, the library and the floor separately; instructions.py reads the counts.
// Earlier rounds bring the heap into its steady state.
#include <valgrind/callgrind.h>

#include <exception>
#include <iostream>
#include <memory>

#include "codec_run.h"

namespace kelvra::bench {
namespace {

constexpr int kRoundsBefore = 3;

[[gnu::noinline]] void RunLibrary(AnyRecord& record, const Workload& workload) {
  for (const Message& message : workload.messages) {
    Decode(record, message);
    Release(record, message);
  }
}

[[gnu::noinline]] void RunFloors(AnyRecord& record, const Workload& workload, std::vector<void*>& blocks) {
  for (const Message& message : workload.messages) RunFloor(record, message, blocks);
}

template <class Run>
void Count(const std::string& name, Run run) {
  for (int round = 0; round < kRoundsBefore; ++round) run();
  CALLGRIND_TOGGLE_COLLECT;
  run();
  CALLGRIND_TOGGLE_COLLECT;
  CALLGRIND_DUMP_STATS_AT(name.c_str());
}

}  // namespace
}  // namespace kelvra::bench

int main(int count, char** arguments) {
  using namespace kelvra::bench;
  if (count != 2) return 2;
  try {
    const auto record = std::make_unique<AnyRecord>();
    for (const Workload& workload : LoadWorkloads(arguments[1])) {
      std::vector<void*> blocks(MostBlocks(workload));
      Count(workload.name + " library", [&] { RunLibrary(*record, workload); });
      Count(workload.name + " floor", [&] { RunFloors(*record, workload, blocks); });
      std::cout << workload.name << ' ' << workload.messages.size() << ' ' << workload.Octets() << '\n';
    }
  } catch (const std::exception& problem) {
    std::cerr << "instructions: " << problem.what() << '\n';
    return 1;
  }
  return 0;
}
