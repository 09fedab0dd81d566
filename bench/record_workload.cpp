// Records the heap calls of messages, with a heap that replaces the library's:
//
//   record_workload MESSAGES.txt FAMILY.jsonl... >WORKLOAD
//
// Each FAMILY.jsonl becomes one workload of all its messages. Each line of MESSAGES.txt becomes a workload of that
// message, or of many variants of it if it leaves octets open.
#include <cstdlib>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <unordered_map>

#include "codec/memory.h"
#include "codec_run.h"
#include "message_text.h"

namespace {

std::vector<int32_t>* steps = nullptr;
std::unordered_map<void*, int32_t> blocks;  // the live blocks and their numbers
int32_t obtained = 0;

}  // namespace

namespace kelvra {

void* CodecAlloc(size_t size) {
  void* block = std::calloc(size, 1);
  steps->push_back(static_cast<int32_t>(size));
  blocks[block] = ++obtained;
  return block;
}

void CodecFree(void* slot, const char* /*sourcePath*/, int /*line*/) {
  void* block = nullptr;
  std::memcpy(&block, slot, sizeof block);
  if (block == nullptr) return;
  steps->push_back(-blocks.at(block));
  blocks.erase(block);
  std::free(block);
  std::memset(slot, 0, sizeof block);
}

}  // namespace kelvra

namespace kelvra::bench {
namespace {

constexpr uint32_t kVariants = 64;

Message Recorded(Family family, std::vector<uint8_t> octets) {
  static AnyRecord record;
  Message message{family, std::move(octets), {}};
  steps = &message.heapSteps;
  obtained = 0;
  Decode(record, message);
  Release(record, message);
  if (!blocks.empty()) throw std::runtime_error("a message leaks blocks");
  return message;
}

// The octets of one line; `random` fills the open ones.
std::vector<uint8_t> Filled(std::string hex, std::mt19937& random) {
  for (char& digit : hex) {
    if (digit == 'x') digit = "0123456789abcdef"[random() % 16];
  }
  return test::Hex(hex);
}

// A RAS decode succeeds only if it ends before the end of the buffer.
std::vector<uint8_t> AsHanded(Family family, std::vector<uint8_t> octets) {
  if (family == Family::kRas) octets.push_back(0);
  return octets;
}

void RecordFamily(const std::filesystem::path& file) {
  const std::string name = file.stem().string();
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    if (line.empty()) continue;
    const Family family = FamilyOf(name);
    SaveMessage(std::cout, name, Recorded(family, AsHanded(family, test::Hex(test::StringMember(line, "hex")))));
  }
}

void RecordSingles(const std::string& file) {
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    if (line.empty() || line.front() == '#') continue;
    std::istringstream words(line);
    std::string name, family, hex;
    words >> name >> family >> hex;
    const uint32_t count = hex.find('x') == std::string::npos ? 1 : kVariants;
    std::mt19937 random(1);
    for (uint32_t i = 0; i < count; ++i) {
      SaveMessage(std::cout, name, Recorded(FamilyOf(family), AsHanded(FamilyOf(family), Filled(hex, random))));
    }
  }
}

}  // namespace
}  // namespace kelvra::bench

int main(int count, char** arguments) {
  try {
    for (int i = 2; i < count; ++i) kelvra::bench::RecordFamily(arguments[i]);
    if (count > 1) kelvra::bench::RecordSingles(arguments[1]);
  } catch (const std::exception& problem) {
    std::cerr << "record_workload: " << problem.what() << '\n';
    return 1;
  }
  return 0;
}
