// The digests in tests/data/record-digests-32 and -64, one line per message: its name, then for each kind of fault a
// digest of the resulting records. Any visible change of a decoder changes a digest, and targets with the same pointer
// size decode into the same octets.
//
// If KELVRA_RENEW_DIGESTS is set, the test writes the file instead and prints what changed.
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
  // Independent of the message's place in its file: its alternative and a digest of its octets.
  static std::string NameOf(const Message& message);
  std::vector<std::string> Names() const;

  // True if the digest is the known one, or is about to replace it.
  bool Accepts(const Message& message, FaultKind kind, const Digest& digest);

  // Called before the first test and after the last.
  void SetUp() override;
  void TearDown() override;

 private:
  using Line = std::array<std::string, 5>;

  void Write() const;

  std::string path_;
  bool renewing_ = false;
  std::map<std::string, Line> lines_;
  std::map<std::string, std::string> changed_;  // the kinds of fault that changed, by message name
};

}  // namespace kelvra::test
