#include "workload.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "message_text.h"

namespace kelvra::bench {

uint64_t Workload::Octets() const {
  uint64_t octets = 0;
  for (const Message& message : messages) octets += message.octets.size();
  return octets;
}

Family FamilyOf(const std::string& name) {
  const auto* found = std::find(std::begin(kFamilyNames), std::end(kFamilyNames), name);
  if (found == std::end(kFamilyNames)) throw std::runtime_error("no family " + name);
  return static_cast<Family>(found - std::begin(kFamilyNames));
}

void SaveMessage(std::ostream& stream, const std::string& workload, const Message& message) {
  static const char kDigits[] = "0123456789abcdef";
  stream << workload << ' ' << kFamilyNames[static_cast<size_t>(message.family)] << ' ';
  for (const uint8_t octet : message.octets) stream << kDigits[octet >> 4] << kDigits[octet & 15];
  for (const int32_t step : message.heapSteps) stream << ' ' << step;
  stream << '\n';
}

std::vector<Workload> LoadWorkloads(const std::string& file) {
  std::ifstream stream(file);
  std::vector<Workload> workloads;
  for (std::string line; std::getline(stream, line);) {
    std::istringstream words(line);
    std::string name, family, hex;
    words >> name >> family >> hex;
    if (workloads.empty() || workloads.back().name != name) workloads.push_back({name, {}});
    Message message{FamilyOf(family), test::Hex(hex), {}};
    for (int32_t step = 0; words >> step;) message.heapSteps.push_back(step);
    workloads.back().messages.push_back(std::move(message));
  }
  if (workloads.empty()) throw std::runtime_error("no messages in " + file);
  return workloads;
}

}  // namespace kelvra::bench
