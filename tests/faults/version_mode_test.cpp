// The version mode of the process: which messages set it, and that a registration uses its own version, whatever else
// is decoded between two of its steps.
#include <set>

#include "codec/memory.h"
#include "families.h"
#include "faults/fault_test.h"
#include "h225/common/protocol_version.h"

namespace kelvra::test {
namespace {

using VersionModeTest = FaultTest;

// Has the same effect as a message of this version that another thread decodes.
void NameVersion(uint8_t version) {
  const uint8_t identifier[] = {0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, version};
  PerReader reader;
  PerReaderInit(reader, identifier, sizeof identifier);
  ObjectIdentifierValue value{};
  h225::ReadProtocolIdentifier(value, reader);
  CodecFree(&value.arcs, "test", 0);
}

TEST_F(VersionModeTest, OfAnotherMessageDoesNotMatterToARegistration) {
  std::vector<Message> registrations = EarlierRegistrations();
  for (const Message& message : Corpus()) {
    if (message.alternative.find("registration") == 0) registrations.push_back(message);
  }
  for (const Message& message : registrations) {
    const std::vector<uint8_t> octets = WithSpare(message.family, message.octets);
    heap_.Reset();
    const uint64_t alone = DigestOf<Ras>(octets);
    for (const uint8_t version : {uint8_t{2}, uint8_t{3}, uint8_t{4}}) {
      heap_.Reset();
      heap_.OnAllocation([version] { NameVersion(version); });
      EXPECT_EQ(DigestOf<Ras>(octets), alone) << message.name << ", among messages of version " << +version;
    }
  }
}

// These name version 4.
TEST_F(VersionModeTest, StaysAsItIsWhateverOtherRasMessagesName) {
  const std::set<std::string> others = {"gatekeeperRequest",          "gatekeeperConfirm",
                                        "gatekeeperReject",           "registrationReject",
                                        "resourcesAvailableIndicate", "resourcesAvailableConfirm"};
  std::set<std::string> seen;
  for (const Message& message : Corpus()) {
    if (others.count(message.alternative) == 0) continue;
    NameVersion(3);
    DigestOf<Ras>(WithSpare(message.family, message.octets));
    EXPECT_EQ(h225::ProtocolVersionMode(), h225::kVersion3Mode) << message.name;
    seen.insert(message.alternative);
  }
  EXPECT_EQ(seen, others);
}

}  // namespace
}  // namespace kelvra::test
