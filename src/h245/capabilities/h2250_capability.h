// What an endpoint can do with channels over RTP (H.225.0).
#pragma once

#include <stdint.h>

#include "../channels/h2250_parameters.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct MediaDistributionCapability {
  uint32_t centralizedControl;
  uint32_t distributedControl;
  uint32_t centralizedAudio;
  uint32_t distributedAudio;
  uint32_t centralizedVideo;
  uint32_t distributedVideo;
  uint32_t hasCentralizedData;
  uint8_t centralizedDataCount;
  DataApplicationCapability* centralizedData;
  uint32_t hasDistributedData;
  uint8_t distributedDataCount;
  DataApplicationCapability* distributedData;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("centralizedControl", m.centralizedControl);
    v.Boolean("distributedControl", m.distributedControl);
    v.Boolean("centralizedAudio", m.centralizedAudio);
    v.Boolean("distributedAudio", m.distributedAudio);
    v.Boolean("centralizedVideo", m.centralizedVideo);
    v.Boolean("distributedVideo", m.distributedVideo);
    if (m.hasCentralizedData) v.List("centralizedData", KELVRA_LIST(m.centralizedData));
    if (m.hasDistributedData) v.List("distributedData", KELVRA_LIST(m.distributedData));
  }
};

struct MultipointCapability {
  uint32_t multicastCapability;
  uint32_t multiUniCastConference;
  uint8_t mediaDistributionCapabilityCount;
  MediaDistributionCapability* mediaDistributionCapability;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("multicastCapability", m.multicastCapability);
    v.Boolean("multiUniCastConference", m.multiUniCastConference);
    v.List("mediaDistributionCapability", KELVRA_LIST(m.mediaDistributionCapability));
  }
};

struct RTPPayloadType {
  struct PayloadDescriptor {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandardIdentifier;
      uint32_t rfcNumber;  // 1 to 32768, or any value where the extensible range is left
      ObjectIdentifierValue oid;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Record("nonStandardIdentifier", m.nonStandardIdentifier);
        case 1: return v.Number("rfc-number", m.rfcNumber);
        case 2: return v.ObjectIdentifier("oid", m.oid);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  PayloadDescriptor payloadDescriptor;
  uint32_t hasPayloadType;
  uint8_t payloadType;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("payloadDescriptor", m.payloadDescriptor);
    if (m.hasPayloadType) v.Number("payloadType", m.payloadType);
  }
};

struct MediaPacketizationCapability {
  uint32_t h261aVideoPacketization;
  uint32_t isExtended;
  uint32_t hasRtpPayloadType;
  uint16_t rtpPayloadTypeCount;
  RTPPayloadType* rtpPayloadType;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("h261aVideoPacketization", m.h261aVideoPacketization);
    if (m.hasRtpPayloadType) v.List("rtpPayloadType", KELVRA_LIST(m.rtpPayloadType));
  }
};

// The encodings are named by their entries in the capability table.
struct RedundancyEncodingCapability {
  RedundancyEncodingMethod redundancyEncodingMethod;
  uint16_t primaryEncoding;
  uint32_t hasSecondaryEncoding;
  uint16_t secondaryEncodingCount;
  uint16_t* secondaryEncoding;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("redundancyEncodingMethod", m.redundancyEncodingMethod);
    v.Number("primaryEncoding", m.primaryEncoding);
    if (m.hasSecondaryEncoding) v.Numbers("secondaryEncoding", KELVRA_LIST(m.secondaryEncoding));
  }
};

struct H2250Capability {
  struct McCapability {
    uint32_t centralizedConferenceMC;
    uint32_t decentralizedConferenceMC;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Boolean("centralizedConferenceMC", m.centralizedConferenceMC);
      v.Boolean("decentralizedConferenceMC", m.decentralizedConferenceMC);
    }
  };

  uint16_t maximumAudioDelayJitter;  // milliseconds
  MultipointCapability receiveMultipointCapability;
  MultipointCapability transmitMultipointCapability;
  MultipointCapability receiveAndTransmitMultipointCapability;
  McCapability mcCapability;
  uint32_t rtcpVideoControlCapability;
  MediaPacketizationCapability mediaPacketizationCapability;
  uint32_t isExtended;
  uint32_t hasTransportCapability;
  TransportCapability transportCapability;
  uint32_t hasRedundancyEncodingCapability;
  uint16_t redundancyEncodingCapabilityCount;
  RedundancyEncodingCapability* redundancyEncodingCapability;
  uint32_t hasLogicalChannelSwitchingCapability;
  uint32_t logicalChannelSwitchingCapability;
  uint32_t hasT120DynamicPortCapability;
  uint32_t t120DynamicPortCapability;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("maximumAudioDelayJitter", m.maximumAudioDelayJitter);
    v.Record("receiveMultipointCapability", m.receiveMultipointCapability);
    v.Record("transmitMultipointCapability", m.transmitMultipointCapability);
    v.Record("receiveAndTransmitMultipointCapability", m.receiveAndTransmitMultipointCapability);
    v.Record("mcCapability", m.mcCapability);
    v.Boolean("rtcpVideoControlCapability", m.rtcpVideoControlCapability);
    v.Record("mediaPacketizationCapability", m.mediaPacketizationCapability);
    if (m.hasTransportCapability) v.Record("transportCapability", m.transportCapability);
    if (m.hasRedundancyEncodingCapability)
      v.List("redundancyEncodingCapability", KELVRA_LIST(m.redundancyEncodingCapability));
    if (m.hasLogicalChannelSwitchingCapability)
      v.Boolean("logicalChannelSwitchingCapability", m.logicalChannelSwitchingCapability);
    if (m.hasT120DynamicPortCapability) v.Boolean("t120DynamicPortCapability", m.t120DynamicPortCapability);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
