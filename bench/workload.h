// The input of the benchmarks: messages, and the heap calls of each.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "families.h"

namespace kelvra::bench {

using test::Family;

inline constexpr const char* kFamilyNames[] = {"ras", "q931", "h245"};

struct Message {
  Family family;
  std::vector<uint8_t> octets;  // as passed to the library, with the spare octet of RAS
  // A decode and its release in order: n allocates a block of n octets, -n frees the n-th block, counting from 1.
  std::vector<int32_t> heapSteps;
};

struct Workload {
  std::string name;
  std::vector<Message> messages;

  uint64_t Octets() const;
};

// The format in which record_workload passes messages on: one per line.
void SaveMessage(std::ostream& stream, const std::string& workload, const Message& message);
std::vector<Workload> LoadWorkloads(const std::string& file);

Family FamilyOf(const std::string& name);

}  // namespace kelvra::bench
