// The digests of tests/data/record-digests-32 and -64, one line per message: its name, then a digest of the records
// that each kind of fault makes of it. No change of a decoder goes unnoticed that shows in any of them, and targets
// with pointers of the same size decode into the same octets.
//
// With KELVRA_RENEW_DIGESTS in the environment the file is written instead, and what changed is printed.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>
#include <vector>

#include "faults/message_corpus.h"
#include "faults/record_digest.h"

namespace kelvra::test {

enum class FaultKind { kCut, kFlipped, kExtremes, kAdded, kRefused };

class KnownDigests : public testing::Environment {
 public:
  // The same wherever the message stands in its file: its alternative and a digest of its octets.
  static std::string NameOf(const Message& message);
  std::vector<std::string> Names() const;

  // Whether the digest is the known one, or is to become it.
  bool Accepts(const Message& message, FaultKind kind, const Digest& digest);

  // Before the first test and after the last.
  void SetUp() override;
  void TearDown() override;

 private:
  using Line = std::array<std::string, 5>;

  void Write() const;

  std::string path_;
  bool renewing_ = false;
  std::map<std::string, Line> lines_;
  std::map<std::string, std::string> changed_;  // the kinds of fault that changed, by the message's name
};

}  // namespace kelvra::test
