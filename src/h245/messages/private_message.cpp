#include "h245/decode.h"
#include "h245/messages/private_message_decode.h"

namespace kelvra::h245 {
namespace {

// Unlike elsewhere, octets that are missing are a failure.
Status DecodePayload(OctetStringValue& m, PerReader& r) {
  if (PerAtEnd(r)) return kMalformed;
  const uint32_t length = PerReadLength(r);
  if (length > PerOctetsLeft(r)) return kMalformed;
  PerReadOctets(m, r, length);
  return length != 0 && m.data == nullptr ? kRefused : kDecoded;
}

}  // namespace

Status DecodePrivateMessage(PrivateMessage& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
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
