// The addresses of channels and the bandwidth that they use. Bandwidth is in units of 100 bit/s.
#pragma once

#include "addresses.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct TransportChannelInfo {
  uint32_t hasSendAddress;
  TransportAddress sendAddress;
  uint32_t hasRecvAddress;
  TransportAddress recvAddress;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasSendAddress, sendAddress, DefinedType());
    KELVRA_OPTIONAL(hasRecvAddress, recvAddress, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct BandwidthDetails {
  uint32_t sender;
  uint32_t multicast;
  uint32_t bandwidth;
  TransportChannelInfo rtcpAddresses;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(sender, Boolean());
    KELVRA_MEMBER(multicast, Boolean());
    KELVRA_MEMBER(bandwidth, Integer(0, kUnsigned32Maximum));
    KELVRA_MEMBER(rtcpAddresses, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RTPSession {
  TransportChannelInfo rtpAddress;
  TransportChannelInfo rtcpAddress;
  OctetStringValue cname;
  uint32_t ssrc;
  uint8_t sessionId;
  uint8_t associatedSessionIdsCount;
  uint8_t* associatedSessionIds;
  uint32_t isExtended;
  uint32_t hasMulticast;
  uint8_t multicast;
  uint32_t hasBandwidth;
  uint32_t bandwidth;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(rtpAddress, DefinedType());
    KELVRA_MEMBER(rtcpAddress, DefinedType());
    KELVRA_MEMBER(cname, PrintableString());
    KELVRA_MEMBER(ssrc, Integer(1, kUnsigned32Maximum));
    KELVRA_MEMBER(sessionId, Integer(1, 255));
    KELVRA_MEMBER_LIST(associatedSessionIds, SequenceOf(Integer(1, 255)));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasMulticast, multicast, Null());
    KELVRA_ADDITION(hasBandwidth, bandwidth, Integer(0, kUnsigned32Maximum));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
