// What descriptions of H.245 records cannot express: hand-written decoders. A comment at each record gives the reason.
#pragma once

#include "kelvra/h245/channels/data_type.h"
#include "kelvra/h245/messages/non_standard_message.h"
#include "per/decoder.h"
#include "record/release.h"

namespace kelvra::h245 {

// If the block of rtpRedundancyEncoding.secondary is refused, the secondaryEncoding decoded before is released at once.
template <class R>
[[gnu::always_inline]] inline Status DecodeByHand(RedundancyEncoding& m, R& r) {
  const Status status = DecodeDescribed(m, r);
  const RedundancyEncoding::RtpRedundancyEncoding& rtp = m.rtpRedundancyEncoding;
  const bool refused =
      rtp.hasSecondary && rtp.secondaryCount != 0 && Slot<RedundancyEncodingElement>(&rtp.secondary).Get() == nullptr;
  if (refused) {
    ReleaseVisitor release("codec/h245func");
    release.Pointer("secondaryEncoding", Slot<DataType>(&m.secondaryEncoding));
  }
  return status;
}

// The payload of a private message. Unlike elsewhere, missing octets are a failure, including those of the length; so
// is a fragmented length. After `messageType` the reader is at an octet boundary.
inline Status DecodePrivatePayload(OctetStringValue& m, PerReader& r) {
  const uint8_t first = PerPeekOctet(r, 0);
  if (first >= 0xC0 || PerOctetsLeft(r) < (first < 0x80 ? 1U : 2U)) return kMalformed;
  const uint32_t length = PerReadLength(r);
  if (length > PerOctetsLeft(r)) return kMalformed;
  m.length = length;
  m.data = PerReadOctets(r, length);
  return length != 0 && m.data == nullptr ? kRefused : kDecoded;
}

struct PrivatePayloadKind {};

template <class R>
Status DecodeKind(OctetStringValue& m, R& r, PrivatePayloadKind) {
  return DecodePrivatePayload(m, r);
}

template <class R>
Status DecodeByHand(PrivateMessage& m, R& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasPayload = flags.Next();
  if (PerOctetsLeft(r) < 2) return kMalformed;
  ValueReader<true, R> reader(r);
  KELVRA_TRY(reader.Read("messageType", asn1::Scalar<uint8_t>(&m.messageType), asn1::Integer(0, 255)));
  if (m.hasPayload) KELVRA_TRY(reader.Read("payload", m.payload, PrivatePayloadKind()));
  if (m.isExtended) SkipExtensionAdditions(r);
  return kDecoded;
}

inline bool IsPrivate(const NonStandardIdentifier& m) {
  const NonStandardIdentifier::H221NonStandard& vendor = m.h221NonStandard;
  return m.choiceTag == 1 && vendor.t35CountryCode == 86 && vendor.t35Extension == 1 && vendor.manufacturerCode == 1;
}

// A private message of `length` octets.
struct PrivateMessageKind : asn1::DefinedTypeKind {
  uint32_t length;
};

// The reader is bounded to the message, so its claims count against the allowance of the whole message; it resumes past
// the message, whatever was consumed.
template <class R>
Status DecodeKind(PrivateMessage& m, R& r, PrivateMessageKind kind) {
  Status status = kDecoded;
  {
    const PerBounds bounds(r, kind.length);
    status = DecodeByHand(m, r);
  }
  if (status != kDecoded) PerMoveToEnd(r, PerCause::kLengthPastEnd);
  return status;
}

// The length of data that hold a private message.
struct PrivateLengthKind {
  uint32_t& length;
};

template <class R>
Status DecodeKind(Slot<uint8_t>&, R& r, PrivateLengthKind kind) {
  kind.length = PerReadLength(r);
  if constexpr (R::kObserves) {
    if (kind.length > PerOctetsLeft(r)) r.Stop(PerCause::kLengthPastEnd);
  }
  return kDecoded;
}

// A NonStandardParameter. Of data that hold a private message only the length is read; other data leave it 0.
struct NonStandardDataKind : asn1::DefinedTypeKind {
  uint32_t& privateLength;
};

template <class R>
Status DecodeKind(NonStandardParameter& m, R& r, NonStandardDataKind kind) {
  ValueReader<false, R> reader(r);
  KELVRA_TRY(reader.Read("nonStandardIdentifier", m.nonStandardIdentifier, asn1::DefinedType()));
  Slot<uint8_t> data(&m.data);
  if (IsPrivate(m.nonStandardIdentifier)) return reader.Read("data", data, PrivateLengthKind{kind.privateLength});
  return reader.Read("data", data, asn1::OctetStringOf(asn1::Scalar<uint32_t>(&m.dataLength)));
}

template <class R>
Status DecodePrivateMessage(H245NonStandardMessageRecord& m, R& r, uint32_t length) {
  if (m.messageClass > kIndication) return kMalformed;
  KELVRA_TRY((ValueReader<true, R>(r).Read("privateMessage", m.privateMessage, PrivateMessageKind{{}, length})));
  m.privateMessageDecoded = 1;
  return kDecoded;
}

template <class R>
Status DecodeByHand(H245NonStandardMessageRecord& m, R& r) {
  m.isExtended = PerReadBit(r);
  uint32_t privateLength = 0;
  KELVRA_TRY(
      (ValueReader<true, R>(r).Read("nonStandardData", m.nonStandardData, NonStandardDataKind{{}, privateLength})));
  // Only a failure of a private message ends the message; data of length 0 hold none.
  if (privateLength != 0) KELVRA_TRY(DecodePrivateMessage(m, r, privateLength));
  if (m.isExtended) SkipExtensionAdditions(r);
  return kDecoded;
}

template <class R>
Status DecodeKind(H245NonStandardMessageRecord& m, R& r, NonStandardMessageKind kind) {
  m.messageClass = kind.messageClass;
  return Decode(m, r);
}

}  // namespace kelvra::h245
