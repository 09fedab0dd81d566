// Records what messages ask of the heap, by a heap of its own in the place of the library's:
//
//   record_workload MESSAGES.txt FAMILY.jsonl... >WORKLOAD
//
// Each FAMILY.jsonl becomes a workload of all its messages. Each line of MESSAGES.txt becomes one of
// that message; where its name begins with stream-, of variants of it that differ in octets which
// change no block and no result: numbers, addresses, characters.
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

namespace {

std::vector<int32_t>* steps = nullptr;
std::unordered_map<void*, int32_t> blocks;  // live ones, and the number of each
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

struct Recording {
  Message message;
  int64_t result;
};

Recording Recorded(Family family, std::vector<uint8_t> octets) {
  static AnyRecord record;
  Recording recording{{family, std::move(octets), {}}, 0};
  steps = &recording.message.heapSteps;
  obtained = 0;
  recording.result = Decode(record, recording.message);
  Release(record, recording.message);
  if (!blocks.empty()) throw std::runtime_error("a message leaks blocks");
  return recording;
}

bool IsAlike(const Recording& recording, const std::vector<uint8_t>& octets) {
  const Recording other = Recorded(recording.message.family, octets);
  return other.result == recording.result && other.message.heapSteps == recording.message.heapSteps;
}

std::vector<Message> Variants(const Recording& recording) {
  const Message& message = recording.message;
  std::mt19937 random(1);
  const auto octet = [&random] { return static_cast<uint8_t>(random()); };
  std::vector<size_t> free;
  for (size_t i = 0; i < message.octets.size(); ++i) {
    bool isFree = true;
    for (int attempt = 0; attempt < 16 && isFree; ++attempt) {
      std::vector<uint8_t> octets = message.octets;
      octets[i] = octet();
      isFree = IsAlike(recording, octets);
    }
    if (isFree) free.push_back(i);
  }
  std::vector<Message> variants;
  while (variants.size() < kVariants) {
    std::vector<uint8_t> octets = message.octets;
    for (const size_t i : free) {
      const uint8_t kept = octets[i];
      octets[i] = octet();
      if (!IsAlike(recording, octets)) octets[i] = kept;
    }
    variants.push_back(Recorded(message.family, octets).message);
  }
  return variants;
}

// The value of a string member in one line of JSON; the strings wanted hold no escapes.
std::string StringMember(const std::string& line, const std::string& name) {
  const std::string start = "\"" + name + "\": \"";
  const size_t at = line.find(start);
  if (at == std::string::npos) throw std::runtime_error("no member " + name);
  const size_t first = at + start.size();
  return line.substr(first, line.find('"', first) - first);
}

// A decode of RAS is successful only before the end of the buffer.
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
    SaveMessage(std::cout, name, Recorded(family, AsHanded(family, OctetsOf(StringMember(line, "hex")))).message);
  }
}

void RecordSingles(const std::string& file) {
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    if (line.empty() || line.front() == '#') continue;
    std::istringstream words(line);
    std::string name, family, hex;
    words >> name >> family >> hex;
    const Recording recording = Recorded(FamilyOf(family), AsHanded(FamilyOf(family), OctetsOf(hex)));
    if (name.starts_with("stream-")) {
      for (const Message& variant : Variants(recording)) SaveMessage(std::cout, name, variant);
    } else {
      SaveMessage(std::cout, name, recording.message);
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
