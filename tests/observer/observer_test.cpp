#include "observer/observer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "message_text.h"
#include "observer/comparison.h"
#include "per/bit_writer.h"

namespace kelvra::test {
namespace {

using Octets = std::vector<uint8_t>;

bool Agrees(Family family, const Octets& octets) {
  const auto exact = std::make_unique<uint8_t[]>(octets.size());
  if (!octets.empty()) std::memcpy(exact.get(), octets.data(), octets.size());
  return ObservedDecodeAgrees(family, exact.get(), octets.size());
}

TEST(ObservedDecode, AgreesWithThePlainDecodeOfEveryMessageAndEveryPrefix) {
  for (const Message& message : Corpus()) {
    EXPECT_TRUE(Agrees(message.family, WithSpare(message.family, message.octets))) << message.name;
    for (size_t size = 0; size <= message.octets.size(); ++size) {
      ASSERT_TRUE(
          Agrees(message.family, {message.octets.begin(), message.octets.begin() + static_cast<ptrdiff_t>(size)}))
          << message.name << " cut to " << size;
    }
  }
}

TEST(ObservedDecode, AgreesWithThePlainDecodeOfFlippedBits) {
  uint32_t bit = 0;
  for (const Message& message : Corpus()) {
    Octets octets = WithSpare(message.family, message.octets);
    for (; bit < octets.size() * 8; bit += 7) {  // every seventh bit across all messages
      octets[bit / 8] ^= static_cast<uint8_t>(0x80 >> bit % 8);
      ASSERT_TRUE(Agrees(message.family, octets)) << message.name << " bit " << bit;
      octets[bit / 8] ^= static_cast<uint8_t>(0x80 >> bit % 8);
    }
    bit -= static_cast<uint32_t>(octets.size() * 8);
  }
}

// The additions of a NonStandardMessage are skipped, and the last one claims more octets than there are.
TEST(ObservedDecode, ReportsASkippedAdditionThatGoesPastTheEnd) {
  EXPECT_TRUE(Agrees(Family::kH245, Hex("00d8000040000003608648d80000400000")));
}

// Writes one line per event.
class Listener : public DecodeObserver {
 public:
  std::string heard;

  void Begin(const Component& component) override { names_.emplace_back(component.name ? component.name : "[]"); }
  void End(const Component& component, uint64_t endBit, bool isRead) override {
    heard += names_.back() + ' ' + std::to_string(component.firstBit) + '-' + std::to_string(endBit) +
             (isRead ? "\n" : " unread\n");
    names_.pop_back();
  }
  void Stopped(const Fault& fault) override {
    heard += "stopped at " + fault.path + " bit " + std::to_string(fault.bit) + " cause " +
             std::to_string(static_cast<int>(fault.cause)) + '\n';
  }
  void Resumed(uint64_t bit) override { heard += "resumed at " + std::to_string(bit) + '\n'; }

 private:
  std::vector<std::string> names_;
};

std::string HeardOfRas(const Octets& octets) {
  const auto record = std::make_unique<h225::RasMessageRecord>();
  std::memset(static_cast<void*>(record.get()), 0, sizeof *record);
  Listener listener;
  ObserveRas(*record, octets.data(), static_cast<uint32_t>(octets.size()), listener);
  KelvraFreeRASMessage(record.get());
  return listener.heard;
}

std::string HeardOfH245(const Octets& octets) {
  const auto record = std::make_unique<h245::H245MessageRecord>();
  std::memset(static_cast<void*>(record.get()), 0, sizeof *record);
  Listener listener;
  ObserveH245(*record, octets.data(), static_cast<uint32_t>(octets.size()), listener);
  KelvraFreeH245Message(record.get());
  return listener.heard;
}

// A gatekeeperReject: the index of the CHOICE in 6 bits, a preamble of 3; each aligned value begins with its padding.
TEST(Observer, ShowsTheBitsOfEachComponent) {
  EXPECT_EQ(HeardOfRas(Hex("08000004060008914A00052000")),
            "requestSeqNum 9-32\n"
            "protocolIdentifier 32-88\n"
            "rejectReason 88-91\n"
            "gatekeeperReject 6-91\n"
            " 0-91\n");
}

TEST(Observer, NamesTheComponentThatIsMissing) {
  EXPECT_EQ(HeardOfRas(Hex("08000004060008914A0005")),
            "requestSeqNum 9-32\n"
            "protocolIdentifier 32-88\n"
            "stopped at gatekeeperReject.rejectReason bit 88 cause 1\n"
            "rejectReason 88-88 unread\n"
            "gatekeeperReject 6-88 unread\n"
            " 0-88 unread\n");
}

TEST(Observer, NamesALengthPastTheEnd) {
  EXPECT_EQ(HeardOfRas(Hex("0800000406000891")),
            "requestSeqNum 9-32\n"
            "stopped at gatekeeperReject.protocolIdentifier bit 32 cause 2\n"
            "protocolIdentifier 32-64 unread\n"
            "rejectReason 64-64 unread\n"
            "gatekeeperReject 6-64 unread\n"
            " 0-64 unread\n");
}

// The index of this CHOICE of NULLs has room for more than its three alternatives.
TEST(Observer, NamesAnIndexPastTheAlternatives) {
  const std::string heard = HeardOfH245(Hex("27800160"));
  EXPECT_NE(heard.find("stopped at response.requestModeReject.cause bit 24 cause 5\n"), std::string::npos) << heard;
}

TEST(Observer, NamesElementsByTheirIndex) {
  // destinationInfo of a locationRequest: one alias of two digits, and a second that is cut.
  const Octets octets =
      BitWriter().Bits(18, 6).Bits(0, 3).Align().Bits(0, 16).Length(2).Bits(0, 2).Bits(1, 7).Align().Bits(0x34, 8);
  const std::string heard = HeardOfRas(octets);
  EXPECT_NE(heard.find("stopped at locationRequest.destinationInfo[1] bit 64 cause 1\n"), std::string::npos) << heard;
}

// The open type of a requestInProgress holds two octets, and its requestSeqNum wants a third: the decode stops, and
// resumes after the open type.
TEST(Observer, ResumesAfterAnOpenType) {
  const Octets octets = BitWriter().Bit(true).NormallySmall(0).OpenType({0x00, 0x00}).Octets({0x5A});
  EXPECT_EQ(HeardOfRas(octets),
            "stopped at requestInProgress.requestSeqNum bit 21 cause 11\n"
            "requestSeqNum 21-32 unread\n"
            "delay 32-32 unread\n"
            "requestInProgress 16-32 unread\n"
            "resumed at 32\n"
            " 0-32 unread\n");
}

// An unknown addition inside goes past the open type, but not past the message.
TEST(Observer, StopsWhereAnAdditionGoesPastTheOpenTypeAroundIt) {
  const Octets value =
      BitWriter().Bit(true).Bits(0, 4).Align().Bits(89, 16).Bits(9, 16).NormallySmall(0).Bit(true).Length(5).Octets(
          {1, 2});
  EXPECT_EQ(HeardOfRas(BitWriter().Bit(true).NormallySmall(0).OpenType(value).Octets({3, 4, 5, 6})),
            "requestSeqNum 21-40\n"
            "delay 40-56\n"
            "stopped at requestInProgress bit 16 cause 11\n"
            "requestInProgress 16-88 unread\n"
            "resumed at 88\n"
            " 0-88 unread\n");
}

TEST(Observer, NamesAStringWhoseOctetsAreMissing) {
  // A nonStandardMessage whose data announces five octets.
  const Octets octets = BitWriter().Bits(23, 6).Bits(0, 1).Align().Bits(0, 16).Bits(0, 2).OpenType({0x2B}).Octets({5});
  const std::string heard = HeardOfRas(octets);
  EXPECT_NE(heard.find("stopped at nonStandardMessage.nonStandardData.data bit 48 cause 1\n"), std::string::npos)
      << heard;
}

// True if the decode of the message stops or goes past its octets.
bool IsFoundCut(const Message& message, size_t size) {
  const Octets octets(message.octets.begin(), message.octets.begin() + static_cast<ptrdiff_t>(size));
  const std::string heard = message.family == Family::kRas ? HeardOfRas(octets) : HeardOfH245(octets);
  return heard.find("stopped at ") != std::string::npos;
}

TEST(Observer, FindsEveryMessageThatWasCut) {
  for (const Message& message : Corpus()) {
    if (message.family == Family::kQ931) continue;
    EXPECT_FALSE(IsFoundCut(message, message.octets.size())) << message.name;
    for (size_t size = 0; size < message.octets.size(); ++size) {
      EXPECT_TRUE(IsFoundCut(message, size))
          << message.name << " cut to " << size << " of " << message.octets.size()
          << (message.family == Family::kRas
                  ? HeardOfRas({message.octets.begin(), message.octets.begin() + static_cast<ptrdiff_t>(size)})
                  : "");
    }
  }
}

TEST(Observer, NamesAVersionAndFragments) {
  // A registrationRequest of version 6.
  const Octets version = BitWriter().Bits(3, 6).Bits(0, 4).Align().Bits(0, 16).OpenType({0, 8, 0x91, 0x4A, 0, 6});
  EXPECT_NE(HeardOfRas(version).find("stopped at registrationRequest.protocolIdentifier bit 32 cause 10\n"),
            std::string::npos);
  const Octets fragments = BitWriter().Bits(3, 6).Bits(0, 4).Align().Bits(0, 16).Octets({0xC1, 0, 0, 0});
  EXPECT_NE(HeardOfRas(fragments).find("stopped at registrationRequest.protocolIdentifier bit 32 cause 3\n"),
            std::string::npos);
}

}  // namespace
}  // namespace kelvra::test
