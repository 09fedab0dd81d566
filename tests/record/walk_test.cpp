#include "kelvra/walk.h"

#include <gtest/gtest.h>

#include <string>

#include "kelvra/h225/common/endpoints.h"
#include "record/release.h"

namespace kelvra {
namespace {

struct Names {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"first", "second", "third"};
};

// Receives the walk of a CHOICE of NULLs.
struct Listener {
  std::string heard;

  void Null(const char* name) { heard = name; }
  void UnknownRoot(uint32_t tag) { heard = "root " + std::to_string(tag); }
  void UnknownExtension(uint32_t tag) { heard = "extension " + std::to_string(tag); }
};

std::string Heard(uint32_t isExtension, uint32_t tag) {
  Listener listener;
  WalkNullChoice<Names>(listener, isExtension, tag);
  return listener.heard;
}

TEST(WalkNullChoice, NamesTheKnownAlternativesOfEachKindAndNoOther) {
  EXPECT_EQ(Heard(0, 0), "first");
  EXPECT_EQ(Heard(0, 1), "second");
  EXPECT_EQ(Heard(0, 2), "root 2");
  EXPECT_EQ(Heard(0, 255), "root 255");
  EXPECT_EQ(Heard(1, 0), "third");
  EXPECT_EQ(Heard(1, 1), "extension 1");
  EXPECT_EQ(Heard(1, 255), "extension 255");
}

TEST(ReleaseVisitor, LeavesAbsentMembersAlone) {
  uint16_t stranger = 42;  // not from the heap
  h225::AlternateGK gatekeeper{};
  gatekeeper.gatekeeperIdentifier = {1, &stranger};
  ReleaseVisitor release("test");
  h225::AlternateGK::Walk(gatekeeper, release);
  EXPECT_EQ(+gatekeeper.gatekeeperIdentifier.data, &stranger);
}

}  // namespace
}  // namespace kelvra
