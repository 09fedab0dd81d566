#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "api/messages.h"
#include "exact_buffer.h"
#include "kelvra/kelvra.h"

namespace kelvra::test {
namespace {

using h225::Q931MessageRecord;
using h225::RasMessageRecord;
using h245::H245MessageRecord;
using Octets = std::vector<uint8_t>;

constexpr uint8_t kDirt = 0xC7;

// A dirty record and a guard after it.
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

using Buffer = ExactBuffer;

intptr_t AddressIn(const Buffer& buffer, uint32_t offset) {
  return static_cast<intptr_t>(reinterpret_cast<uintptr_t>(buffer.Data()) + offset);
}

Octets With(Octets octets, std::initializer_list<uint8_t> more) {
  octets.insert(octets.end(), more);
  return octets;
}

intptr_t DecodeRas(Ras& ras, const Buffer& buffer) {
  return KelvraDecodeRASMessage(&ras.record, buffer.Data(), buffer.Size());
}

int32_t DecodeH245(H245& h245, const Buffer& buffer) {
  return KelvraDecodeH245Message(&h245.record, buffer.Data(), buffer.Size());
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

TEST(RasFrame, ReturnsTheAddressAfterTheMessage) {
  const Buffer buffer(With(Hex(kReject), {0xEE, 0xEE}));
  Ras ras;
  EXPECT_EQ(DecodeRas(ras, buffer), AddressIn(buffer, 12));
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
  EXPECT_EQ(DecodeRas(ras, buffer), AddressIn(buffer, 12));
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
  EXPECT_EQ(DecodeRas(ras, spare), AddressIn(spare, exact.Size()));
  ASSERT_NE(+confirm.nonStandardData.data.data, nullptr);
  EXPECT_EQ(confirm.nonStandardData.data.data[3], 0x2Du);
  KelvraFreeRASMessage(&ras.record);
  EXPECT_EQ(+confirm.nonStandardData.data.data, nullptr);
  KelvraFreeRASMessage(&ras.record);
  EXPECT_EQ(+confirm.nonStandardData.data.data, nullptr);
}

TEST(RasFrame, PassesOverAnUnknownExtensionAlternative) {
  const Buffer buffer(Hex("8902aabb00"));
  Ras ras;
  EXPECT_EQ(DecodeRas(ras, buffer), AddressIn(buffer, 4));
  EXPECT_EQ(+ras.record.choiceTag, 9u);
  EXPECT_EQ(+ras.record.isExtension, 1u);
  Octets body = ras.Bytes();
  EXPECT_EQ(Octets(body.begin() + 1, body.end() - 4), Octets(sizeof ras.record - 5, 0));

  // An end exactly at the buffer's end counts as failure, one past it does not.
  EXPECT_EQ(DecodeRas(ras, Buffer(Hex("8902aabb"))), 0);
  EXPECT_EQ(+ras.record.choiceTag, 9u);
  const Buffer beyond(Hex("8905aabb"));
  EXPECT_EQ(DecodeRas(ras, beyond), AddressIn(beyond, 7));
}

TEST(RasFrame, KeepsTheLowSixteenBitsOfTheLength) {
  const Buffer buffer(With(Hex(kConfirm), {0}));
  Ras ras;
  EXPECT_EQ(KelvraDecodeRASMessage(&ras.record, buffer.Data(), 0x10000 + buffer.Size()),
            AddressIn(buffer, buffer.Size() - 1));
  EXPECT_EQ(+ras.record.gatekeeperConfirm.requestSeqNum, 178u);
  KelvraFreeRASMessage(&ras.record);
  EXPECT_EQ(KelvraDecodeRASMessage(&ras.record, buffer.Data(), 0xFFFF0000), 0);
  EXPECT_EQ(ras.Bytes(), Octets(sizeof ras.record, 0));
}

TEST(H245Frame, DistinguishesACompleteMessageFromOneWithOctetsLeftOver) {
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
