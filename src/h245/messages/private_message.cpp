#include "h245/decode.h"
#include "h245/messages/private_message_decode.h"

namespace kelvra::h245 {
namespace {

// Unlike elsewhere, octets that are missing are a failure, those of the length included; so is a length in
// fragments. After `messageType` the reader stands at an octet.
Status DecodePayload(OctetStringValue& m, PerReader& r) {
  const uint8_t first = PerPeekOctet(r, 0);
  if (first >= 0xC0 || PerOctetsLeft(r) < (first < 0x80 ? 1U : 2U)) return kMalformed;
  const uint32_t length = PerReadLength(r);
  if (length > PerOctetsLeft(r)) return kMalformed;
  PerReadOctets(m, r, length);
  return length != 0 && m.data == nullptr ? kRefused : kDecoded;
}

}  // namespace

Status DecodePrivateMessage(PrivateMessage& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasPayload = flags.Next();
  if (PerOctetsLeft(r) < 2) return kMalformed;
  m.messageType = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.hasPayload) KELVRA_TRY(DecodePayload(m.payload, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h245
