#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

#include "api/messages.h"
#include "kelvra/kelvra.h"

namespace kelvra::test {
namespace {

using h225::Q931MessageRecord;
using h225::RasMessageRecord;
using h245::H245MessageRecord;
using Octets = std::vector<uint8_t>;

constexpr uint8_t kDirt = 0xC7;

// A dirty record and what stands behind it.
template <class Record>
struct Guarded {
  Guarded() { std::memset(static_cast<void*>(this), kDirt, sizeof *this); }

  Octets Bytes() const {
    const auto* first = reinterpret_cast<const uint8_t*>(&record);
    return Octets(first, first + sizeof record);
  }
  bool GuardIsUntouched() const {
    for (const uint8_t octet : guard) {
      if (octet != kDirt) return false;
    }
    return true;
  }

  Record record;
  uint8_t guard[64];
};

using Ras = Guarded<RasMessageRecord>;
using Q931 = Guarded<Q931MessageRecord>;
using H245 = Guarded<H245MessageRecord>;

// An input in a heap block of exactly its size.
class Buffer {
 public:
  explicit Buffer(const Octets& octets) : size_(static_cast<uint32_t>(octets.size())), octets_(new uint8_t[size_]) {
    std::copy(octets.begin(), octets.end(), octets_.get());
  }
  const uint8_t* Data() const { return octets_.get(); }
  uint32_t Size() const { return size_; }
  intptr_t Address(uint32_t offset) const {
    return static_cast<intptr_t>(reinterpret_cast<uintptr_t>(Data()) + offset);
  }

 private:
  uint32_t size_;
  std::unique_ptr<uint8_t[]> octets_;
};

Octets With(Octets octets, std::initializer_list<uint8_t> more) {
  octets.insert(octets.end(), more);
  return octets;
}

Octets Prefix(const Octets& octets, size_t size) { return {octets.begin(), octets.begin() + static_cast<long>(size)}; }

intptr_t DecodeRas(Ras& ras, const Buffer& buffer) {
  return KelvraDecodeRASMessage(&ras.record, buffer.Data(), buffer.Size());
}

int32_t DecodeH245(H245& h245, const Buffer& buffer) {
  return KelvraDecodeH245Message(&h245.record, buffer.Data(), buffer.Size());
}

int32_t DecodeQ931(Q931& q931, const Buffer& buffer) {
  return KelvraDecodeQ931Message(&q931.record, buffer.Data(), static_cast<int32_t>(buffer.Size()));
}

TEST(NullArguments, LeaveTheRecordUntouched) {
  const Buffer buffer(Hex(kReject));
  KelvraFreeRASMessage(nullptr);
  KelvraFreeQ931Message(nullptr);
  Ras ras;
  EXPECT_EQ(KelvraDecodeRASMessage(&ras.record, nullptr, 12), 0);
  EXPECT_EQ(ras.Bytes(), Octets(sizeof ras.record, kDirt));
  EXPECT_EQ(KelvraDecodeRASMessage(nullptr, buffer.Data(), buffer.Size()), 0);

  Q931 q931;
  EXPECT_EQ(KelvraDecodeQ931Message(&q931.record, nullptr, 12), -1);
  EXPECT_EQ(KelvraDecodeQ931Message(&q931.record, nullptr, 0), -1);
  EXPECT_EQ(q931.Bytes(), Octets(sizeof q931.record, kDirt));
  EXPECT_EQ(KelvraDecodeQ931Message(nullptr, buffer.Data(), 12), -1);

  H245 h245;
  EXPECT_EQ(KelvraDecodeH245Message(&h245.record, nullptr, 12), -1);
  EXPECT_EQ(h245.Bytes(), Octets(sizeof h245.record, kDirt));
  EXPECT_EQ(KelvraDecodeH245Message(nullptr, buffer.Data(), buffer.Size()), -1);
}

TEST(RasFrame, ReturnsTheAddressBehindTheMessage) {
  const Buffer buffer(With(Hex(kReject), {0xEE, 0xEE}));
  Ras ras;
  EXPECT_EQ(DecodeRas(ras, buffer), buffer.Address(12));
  EXPECT_EQ(+ras.record.choiceTag, 2u);
  EXPECT_EQ(+ras.record.isExtension, 0u);
  const auto& reject = ras.record.gatekeeperReject;
  EXPECT_EQ(+reject.requestSeqNum, 33143u);
  ASSERT_EQ(+reject.protocolIdentifier.count, 6u);
  EXPECT_EQ(reject.protocolIdentifier.arcs[3], 2250u);
  EXPECT_EQ(+reject.rejectReason.choiceTag, 2u);
  EXPECT_TRUE(ras.GuardIsUntouched());
  KelvraFreeRASMessage(&ras.record);
  EXPECT_EQ(+reject.protocolIdentifier.arcs, nullptr);
  EXPECT_EQ(+reject.requestSeqNum, 33143u);
}

TEST(RasFrame, TakesAMessageThatEndsInsideItsLastOctet) {
  const Buffer buffer(Hex(kReject));
  Ras ras;
  EXPECT_EQ(DecodeRas(ras, buffer), buffer.Address(12));
  KelvraFreeRASMessage(&ras.record);
}

TEST(RasFrame, RefusesAMessageThatFillsItsBufferAndTakesItWithASpareOctet) {
  const Buffer exact(Hex(kConfirmWithBlocks));
  Ras ras;
  EXPECT_EQ(DecodeRas(ras, exact), 0);
  auto& confirm = ras.record.gatekeeperConfirm;
  EXPECT_EQ(+ras.record.choiceTag, 1u);
  EXPECT_EQ(+confirm.requestSeqNum, 1u);
  EXPECT_EQ(+confirm.protocolIdentifier.count, 6u);
  EXPECT_EQ(+confirm.protocolIdentifier.arcs, nullptr);
  EXPECT_EQ(+confirm.nonStandardData.data.length, 4u);
  EXPECT_EQ(+confirm.nonStandardData.data.data, nullptr);
  EXPECT_TRUE(ras.GuardIsUntouched());

  const Buffer spare(With(Hex(kConfirmWithBlocks), {0}));
  EXPECT_EQ(DecodeRas(ras, spare), spare.Address(exact.Size()));
  ASSERT_NE(+confirm.nonStandardData.data.data, nullptr);
  EXPECT_EQ(confirm.nonStandardData.data.data[3], 0x2Du);
  KelvraFreeRASMessage(&ras.record);
  EXPECT_EQ(+confirm.nonStandardData.data.data, nullptr);
  KelvraFreeRASMessage(&ras.record);
  EXPECT_EQ(+confirm.nonStandardData.data.data, nullptr);
}

TEST(RasFrame, RefusesEveryMessageThatIsCutShort) {
  for (const auto message : {kConfirm, kConfirmWithBlocks, kRejectWithFeatures}) {
    const Octets octets = Hex(message);
    for (size_t size = 0; size < octets.size(); ++size) {
      SCOPED_TRACE(testing::Message() << message << " cut at " << size);
      Ras ras;
      EXPECT_EQ(DecodeRas(ras, Buffer(Prefix(octets, size))), 0);
      EXPECT_EQ(+ras.record.gatekeeperConfirm.protocolIdentifier.arcs, nullptr);
      KelvraFreeRASMessage(&ras.record);
      EXPECT_TRUE(ras.GuardIsUntouched());
    }
  }
}

TEST(RasFrame, ClearsTheWholeRecordWhateverTheMessage) {
  // Root index 31 of 25 alternatives.
  const Buffer unknown(Hex("7c00"));
  Ras ras;
  EXPECT_EQ(DecodeRas(ras, unknown), 0);
  Octets expected(sizeof ras.record, 0);
  expected[0] = 31;
  EXPECT_EQ(ras.Bytes(), expected);
  EXPECT_TRUE(ras.GuardIsUntouched());

  Ras empty;
  EXPECT_EQ(KelvraDecodeRASMessage(&empty.record, unknown.Data(), 0), 0);
  EXPECT_EQ(empty.Bytes(), Octets(sizeof empty.record, 0));
}

TEST(RasFrame, PassesOverAnUnknownExtensionAlternative) {
  const Buffer buffer(Hex("8902aabb00"));
  Ras ras;
  EXPECT_EQ(DecodeRas(ras, buffer), buffer.Address(4));
  EXPECT_EQ(+ras.record.choiceTag, 9u);
  EXPECT_EQ(+ras.record.isExtension, 1u);
  Octets body = ras.Bytes();
  EXPECT_EQ(Octets(body.begin() + 1, body.end() - 4), Octets(sizeof ras.record - 5, 0));

  // Exactly at the end counts as a failure, beyond it does not.
  EXPECT_EQ(DecodeRas(ras, Buffer(Hex("8902aabb"))), 0);
  EXPECT_EQ(+ras.record.choiceTag, 9u);
  const Buffer beyond(Hex("8905aabb"));
  EXPECT_EQ(DecodeRas(ras, beyond), beyond.Address(7));
}

TEST(RasFrame, KeepsTheLowSixteenBitsOfTheLength) {
  const Buffer buffer(With(Hex(kConfirm), {0}));
  Ras ras;
  EXPECT_EQ(KelvraDecodeRASMessage(&ras.record, buffer.Data(), 0x10000 + buffer.Size()),
            buffer.Address(buffer.Size() - 1));
  EXPECT_EQ(+ras.record.gatekeeperConfirm.requestSeqNum, 178u);
  KelvraFreeRASMessage(&ras.record);
  EXPECT_EQ(KelvraDecodeRASMessage(&ras.record, buffer.Data(), 0xFFFF0000), 0);
  EXPECT_EQ(ras.Bytes(), Octets(sizeof ras.record, 0));
}

TEST(Q931Frame, DecodesAndReleases) {
  Q931 q931;
  EXPECT_EQ(DecodeQ931(q931, Buffer(Hex(kEmptyWithBlocks))), 0);
  EXPECT_EQ(+q931.record.protocolDiscriminator, 8u);
  EXPECT_EQ(+q931.record.callReferenceValue, 30282u);
  EXPECT_EQ(+q931.record.messageType, 123u);
  EXPECT_EQ(+q931.record.callIdentity[0], 0x25u);
  EXPECT_EQ(+q931.record.presenceMask & h225::kUserInformationPresent, h225::kUserInformationPresent);
  auto& pdu = q931.record.userInformation.h323UuPdu;
  ASSERT_EQ(+pdu.nonStandardData.data.length, 5u);
  ASSERT_NE(+pdu.nonStandardData.data.data, nullptr);
  EXPECT_EQ(pdu.nonStandardData.data.data[4], 0xD5u);
  EXPECT_TRUE(q931.GuardIsUntouched());
  for (int i = 0; i < 2; ++i) {
    KelvraFreeQ931Message(&q931.record);
    EXPECT_EQ(+pdu.nonStandardData.data.data, nullptr);
  }
  EXPECT_EQ(+pdu.nonStandardData.data.length, 5u);
}

TEST(Q931Frame, RefusesALengthWhoseLowSixteenBitsAreZero) {
  const Buffer buffer(Hex(kProceeding));
  for (const int32_t length : {0, 65536, -65536}) {
    SCOPED_TRACE(length);
    Q931 q931;
    EXPECT_EQ(KelvraDecodeQ931Message(&q931.record, buffer.Data(), length), -10);
    EXPECT_EQ(q931.Bytes(), Octets(sizeof q931.record, 0));
    EXPECT_TRUE(q931.GuardIsUntouched());
  }
}

TEST(Q931Frame, RejectsAMessageWithoutUserInformationButFillsItsHeader) {
  Q931 q931;
  EXPECT_EQ(DecodeQ931(q931, Buffer(Hex("0300000e0802764a5a1001257b01ff"))), -1);
  EXPECT_EQ(+q931.record.callReferenceValue, 0x764Au);
  EXPECT_EQ(+q931.record.presenceMask, uint32_t{h225::kCallIdentityPresent});
  EXPECT_TRUE(q931.GuardIsUntouched());
  KelvraFreeQ931Message(&q931.record);
}

TEST(Q931Frame, ReleasesUserInformationThatDoesNotDecode) {
  // The contents of the user-user element end inside nonStandardData's octets.
  Octets octets = Hex(kEmptyWithBlocks);
  octets[22] = 0x10;
  Q931 q931;
  EXPECT_EQ(DecodeQ931(q931, Buffer(octets)), -1);
  EXPECT_EQ(+q931.record.presenceMask & h225::kUserInformationPresent, 0u);
  EXPECT_EQ(+q931.record.callReferenceValue, 30282u);
  const auto& data = q931.record.userInformation.h323UuPdu.nonStandardData;
  EXPECT_EQ(+data.nonStandardIdentifier.object.count, 7u);
  EXPECT_EQ(+data.nonStandardIdentifier.object.arcs, nullptr);
  EXPECT_EQ(+data.data.data, nullptr);
  KelvraFreeQ931Message(&q931.record);
}

TEST(Q931Frame, ReadsNothingBehindAMessageThatIsCutShort) {
  for (const auto message : {kProceeding, kEmptyWithBlocks}) {
    const Octets octets = Hex(message);
    for (size_t size = 1; size < octets.size() - 2; ++size) {
      SCOPED_TRACE(testing::Message() << message << " cut at " << size);
      Q931 q931;
      DecodeQ931(q931, Buffer(Prefix(octets, size)));
      KelvraFreeQ931Message(&q931.record);
      KelvraFreeQ931Message(&q931.record);
      EXPECT_EQ(+q931.record.userInformation.h323UuPdu.nonStandardData.data.data, nullptr);
      EXPECT_EQ(+q931.record.protocolDiscriminator, size > 4 ? 8u : 0u);
      EXPECT_TRUE(q931.GuardIsUntouched());
    }
  }
}

TEST(H245Frame, TellsACompleteMessageFromOneWithOctetsLeftOver) {
  const Octets octets = Hex(kChannel);
  H245 h245;
  EXPECT_EQ(DecodeH245(h245, Buffer(octets)), 1);
  EXPECT_EQ(+h245.record.isExtension, 0u);
  EXPECT_EQ(+h245.record.choiceTag, 0u);
  EXPECT_EQ(+h245.record.request.choiceTag, 3u);
  EXPECT_EQ(+h245.record.request.openLogicalChannel.forwardLogicalChannelNumber, 25168u);
  EXPECT_TRUE(h245.GuardIsUntouched());
  KelvraFreeH245Message(&h245.record);

  EXPECT_EQ(DecodeH245(h245, Buffer(With(octets, {0}))), 0);
  EXPECT_EQ(+h245.record.request.openLogicalChannel.forwardLogicalChannelNumber, 25168u);
  KelvraFreeH245Message(&h245.record);
}

TEST(H245Frame, ReportsAMessageThatIsCutShortAsEndedAndKeepsWhatItHolds) {
  for (const auto message : {kChannel, kChannelWithBlocks}) {
    const Octets octets = Hex(message);
    for (size_t size = 0; size <= octets.size(); ++size) {
      SCOPED_TRACE(testing::Message() << message << " cut at " << size);
      H245 h245;
      const int32_t result = DecodeH245(h245, Buffer(Prefix(octets, size)));
      if (message == kChannel) {
        EXPECT_EQ(result, 1);
      }
      // A number that is missing reads as its lower bound.
      const uint32_t number = h245.record.request.openLogicalChannel.forwardLogicalChannelNumber;
      EXPECT_EQ(number, size == 0 ? 0u : size < 4 ? 1u : message == kChannel ? 25168u : 65535u);
      EXPECT_TRUE(h245.GuardIsUntouched());
      KelvraFreeH245Message(&h245.record);
      const Octets released = h245.Bytes();
      KelvraFreeH245Message(&h245.record);
      EXPECT_EQ(h245.Bytes(), released);
    }
  }
}

TEST(H245Frame, PassesOverAnExtensionAlternativeAtTheTop) {
  for (const auto message : {"8001aa", "bf01aa", "c0014002aabb"}) {
    SCOPED_TRACE(message);
    const Octets octets = Hex(message);
    H245 h245;
    EXPECT_EQ(DecodeH245(h245, Buffer(octets)), 1);
    Octets expected(sizeof h245.record, 0);
    const uint32_t one = 1;
    std::memcpy(expected.data(), &one, sizeof one);
    EXPECT_EQ(h245.Bytes(), expected);
    EXPECT_EQ(DecodeH245(h245, Buffer(With(octets, {0}))), 0);
    EXPECT_EQ(h245.Bytes(), expected);
    EXPECT_TRUE(h245.GuardIsUntouched());
    KelvraFreeH245Message(&h245.record);
  }
}

TEST(H245Frame, TellsTheFourClassesApart) {
  const struct {
    const char* message;
    uint8_t tag;
  } cases[] = {{"10400140", 0}, {"22800000", 1}, {"42", 2}, {"6200", 3}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.message);
    H245 h245;
    DecodeH245(h245, Buffer(Hex(test.message)));
    EXPECT_EQ(+h245.record.choiceTag, test.tag);
    KelvraFreeH245Message(&h245.record);
  }
}

TEST(H245Frame, KeepsTheLowSixteenBitsOfTheLength) {
  const Buffer buffer(Hex(kChannel));
  H245 h245;
  EXPECT_EQ(KelvraDecodeH245Message(&h245.record, buffer.Data(), 0x30000 + buffer.Size()), 1);
  EXPECT_EQ(+h245.record.request.openLogicalChannel.forwardLogicalChannelNumber, 25168u);
  KelvraFreeH245Message(&h245.record);
  EXPECT_EQ(KelvraDecodeH245Message(&h245.record, buffer.Data(), 0x10000), 1);
  EXPECT_EQ(h245.Bytes(), Octets(sizeof h245.record, 0));
}

}  // namespace
}  // namespace kelvra::test
