#include "h225/common/addresses_decode.h"
#include "h225/common/bandwidth_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeTransportChannelInfo(TransportChannelInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasSendAddress = flags.Next();
  m.hasRecvAddress = flags.Next();
  if (m.hasSendAddress) KELVRA_TRY(DecodeTransportAddress(m.sendAddress, r));
  if (m.hasRecvAddress) KELVRA_TRY(DecodeTransportAddress(m.recvAddress, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeBandwidthDetails(BandwidthDetails& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.sender = flags.Next();
  m.multicast = flags.Next();
  m.bandwidth = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  KELVRA_TRY(DecodeTransportChannelInfo(m.rtcpAddresses, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeRTPSession(RTPSession& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  KELVRA_TRY(DecodeTransportChannelInfo(m.rtpAddress, r));
  KELVRA_TRY(DecodeTransportChannelInfo(m.rtcpAddress, r));
  PerReadPrintableString(m.cname, r, PerReadLength(r));
  m.ssrc = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  m.sessionId = PerReadNumber<uint8_t>(r, 1, 255);
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.associatedSessionIds), r, PerReadElement<uint8_t, 1, 255>));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasMulticast = known.Next();
  m.hasBandwidth = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasMulticast) PerPassOverOpenType(r);
  if (m.hasBandwidth) m.bandwidth = PerReadOpenNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
