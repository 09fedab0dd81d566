#include "faults/known_digests.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <set>
#include <sstream>

namespace kelvra::test {
namespace {

constexpr std::array<const char*, 5> kKinds = {"cut", "flipped", "extremes", "added", "refused"};

std::string Hexadecimal(uint64_t value) {
  std::ostringstream text;
  text << std::hex << value;
  return text.str();
}

}  // namespace

void KnownDigests::SetUp() {
  path_ = KELVRA_TEST_DATA "/record-digests-" + std::to_string(sizeof(void*) * 8);
  renewing_ = std::getenv("KELVRA_RENEW_DIGESTS") != nullptr;
  std::ifstream file(path_);
  for (std::string text; std::getline(file, text);) {
    std::istringstream words(text);
    std::string name;
    words >> name;
    for (std::string& digest : lines_[name]) words >> digest;
  }
}

void KnownDigests::TearDown() {
  if (!renewing_ || testing::UnitTest::GetInstance()->Failed()) return;
  Write();
  for (const auto& [name, kinds] : changed_) std::printf("%s:%s\n", name.c_str(), kinds.c_str());
  std::printf("%s: %zu messages changed\n", path_.c_str(), changed_.size());
}

void KnownDigests::Write() const {
  std::set<std::string> carried;
  for (const Message& message : Corpus()) carried.insert(NameOf(message));
  std::ofstream file(path_, std::ios::binary);
  for (const auto& [name, line] : lines_) {
    if (carried.count(name) == 0) {
      std::printf("%s: gone\n", name.c_str());
      continue;
    }
    file << name;
    for (const std::string& digest : line) file << ' ' << digest;
    file << '\n';
  }
  EXPECT_TRUE(file.flush()) << path_;
}

std::string KnownDigests::NameOf(const Message& message) {
  Digest octets;
  octets.Add(message.octets.data(), message.octets.size());
  return message.alternative + "#" + Hexadecimal(octets.Value() >> 32);
}

std::vector<std::string> KnownDigests::Names() const {
  std::vector<std::string> names;
  for (const auto& [name, line] : lines_) names.push_back(name);
  return names;
}

bool KnownDigests::Accepts(const Message& message, FaultKind kind, const Digest& digest) {
  const std::string name = NameOf(message);
  const std::string value = Hexadecimal(digest.Value());
  const auto column = static_cast<size_t>(kind);
  if (renewing_) {
    std::string& known = lines_[name][column];
    if (known != value) changed_[name] += std::string(" ") + kKinds[column];
    known = value;
    return true;
  }
  const auto line = lines_.find(name);
  return line != lines_.end() && line->second[column] == value;
}

}  // namespace kelvra::test
