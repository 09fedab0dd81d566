// The checks of every fault test, whatever the fault.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "faults/heap_double.h"
#include "faults/message_corpus.h"
#include "per/reader.h"

namespace kelvra::test {

class FaultTest : public testing::Test {
 protected:
  void SetUp() override { heap_.Reset(); }
  void TearDown() override {
    EXPECT_TRUE(heap_.LiveBlocks().empty());
    EXPECT_EQ(heap_.WildReleases(), 0U);
    heap_.DropLiveBlocks();
  }

  // The record reaches every live block once, and owns none after a refusal.
  void ExpectOwnership(Family family, DecodedMessage& message, const std::string& what) {
    const std::vector<const void*> live = heap_.LiveBlocks();
    EXPECT_EQ(message.Blocks().Addresses(), live) << what;
    EXPECT_TRUE(live.empty() || family == Family::kH245 || message.Accepted()) << what;
    EXPECT_LE(heap_.OctetsGranted(), kMaximumMessageMemory) << what;
  }

  // A release frees every block and leaves no pointer; a second one does nothing.
  void ExpectCleanRelease(DecodedMessage& message, const std::string& what) {
    message.Release();
    EXPECT_TRUE(heap_.LiveBlocks().empty()) << what;
    EXPECT_TRUE(message.Blocks().Blocks().empty()) << what;
    const size_t releases = heap_.Releases().size();
    message.Release();
    EXPECT_EQ(heap_.Releases().size(), releases) << what;
    EXPECT_EQ(heap_.WildReleases(), 0U) << what;
  }

  // Decodes any octets.
  void ExpectSafe(Family family, const std::vector<uint8_t>& octets, const std::string& what) {
    heap_.Reset();
    DecodedMessage message(family, octets);
    switch (family) {
      case Family::kRas:
        EXPECT_NE(message.Result(), 0) << what;  // an accepted message ends after its first octet
        break;
      case Family::kQ931: EXPECT_TRUE(message.Result() == 0 || message.Result() == -1) << what; break;
      case Family::kH245: EXPECT_TRUE(message.Result() == 0 || message.Result() == 1) << what; break;
    }
    ExpectOwnership(family, message, what);
    ExpectCleanRelease(message, what);
  }

  HeapDouble& heap_ = HeapDouble::Instance();
};

}  // namespace kelvra::test
