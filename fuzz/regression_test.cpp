// Finds of fuzzing and constructed cases, one message per file: regressions/FAMILY/NAME.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "decode_and_release.h"

namespace kelvra::fuzz {
namespace {

void RunCases(const char* family, void (*body)(const uint8_t*, size_t)) {
  size_t cases = 0;
  for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(KELVRA_REGRESSIONS) / family)) {
    SCOPED_TRACE(entry.path().filename().string());
    std::ifstream file(entry.path(), std::ios::binary);
    const std::vector<char> octets{std::istreambuf_iterator<char>(file), {}};
    ASSERT_TRUE(file.is_open());
    body(reinterpret_cast<const uint8_t*>(octets.data()), octets.size());
    ++cases;
  }
  EXPECT_GT(cases, 0U);
}

TEST(FuzzRegressions, Ras) { RunCases("ras", DecodeAndReleaseRas); }
TEST(FuzzRegressions, Q931) { RunCases("q931", DecodeAndReleaseQ931); }
TEST(FuzzRegressions, H245) { RunCases("h245", DecodeAndReleaseH245); }

}  // namespace
}  // namespace kelvra::fuzz
