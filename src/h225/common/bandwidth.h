// The addresses of channels and the bandwidth that they use. Bandwidth is in units of 100 bit/s.
#pragma once

#include <stdint.h>

#include "addresses.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct TransportChannelInfo {
  uint32_t hasSendAddress;
  TransportAddress sendAddress;
  uint32_t hasRecvAddress;
  TransportAddress recvAddress;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasSendAddress) v.Record("sendAddress", m.sendAddress);
    if (m.hasRecvAddress) v.Record("recvAddress", m.recvAddress);
  }
};

struct BandwidthDetails {
  uint32_t sender;
  uint32_t multicast;
  uint32_t bandwidth;
  TransportChannelInfo rtcpAddresses;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("sender", m.sender);
    v.Boolean("multicast", m.multicast);
    v.Number("bandwidth", m.bandwidth);
    v.Record("rtcpAddresses", m.rtcpAddresses);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("rtpAddress", m.rtpAddress);
    v.Record("rtcpAddress", m.rtcpAddress);
    WalkOctets(v, "cname", m.cname, OctetNotation::kCharacters);
    v.Number("ssrc", m.ssrc);
    v.Number("sessionId", m.sessionId);
    v.Numbers("associatedSessionIds", KELVRA_LIST(m.associatedSessionIds));
    if (m.hasMulticast) v.Null("multicast");
    if (m.hasBandwidth) v.Number("bandwidth", m.bandwidth);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
