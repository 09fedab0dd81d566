// What the benchmarks run: messages, and what each asks of the heap.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kelvra::bench {

enum class Family : uint8_t { kRas, kQ931, kH245 };

inline constexpr const char* kFamilyNames[] = {"ras", "q931", "h245"};

struct Message {
  Family family;
  std::vector<uint8_t> octets;  // as handed to the library, so with the spare octet of RAS
  // A decode and the release after it, in their order: n obtains a block of n octets, -n gives back the
  // n-th block obtained, counted from 1.
  std::vector<int32_t> heapSteps;
};

struct Workload {
  std::string name;
  std::vector<Message> messages;

  uint64_t Octets() const;
};

// The form in which record_workload passes them on: a line a message.
void SaveMessage(std::ostream& stream, const std::string& workload, const Message& message);
std::vector<Workload> LoadWorkloads(const std::string& file);

Family FamilyOf(const std::string& name);

}  // namespace kelvra::bench
