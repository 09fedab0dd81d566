// Every carried message with one octet of it changed.
#include "doubles/fault_test.h"

namespace kelvra::test {
namespace {

// An octet's extremes: no bit, all bits, the largest short length, a long length or an extension bit.
constexpr uint8_t kReplacements[] = {0x00, 0x7F, 0x80, 0xFF};

class CorruptionTest : public FaultTest {
 protected:
  void ExpectSafeEverywhere(Family family) {
    for (const Message& original : Corpus()) {
      if (original.family != family) continue;
      std::vector<uint8_t> octets = WithSpare(family, original.octets);
      for (size_t at = 0; at < original.octets.size(); ++at) {
        for (const uint8_t replacement : kReplacements) {
          if (original.octets[at] == replacement) continue;
          octets[at] = replacement;
          ExpectSafe(family, octets,
                     original.name + ", octet " + std::to_string(at) + " set to " + std::to_string(replacement));
          if (HasFailure()) return;  // the others would say the same
        }
        octets[at] = original.octets[at];
      }
    }
  }
};

TEST_F(CorruptionTest, RasMessages) { ExpectSafeEverywhere(Family::kRas); }
TEST_F(CorruptionTest, Q931Messages) { ExpectSafeEverywhere(Family::kQ931); }
TEST_F(CorruptionTest, H245Messages) { ExpectSafeEverywhere(Family::kH245); }

}  // namespace
}  // namespace kelvra::test
