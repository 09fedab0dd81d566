// Parameters of a channel over RTP (H.225.0).
#pragma once

#include <stdint.h>

#include "../common/transport_address.h"
#include "data_type.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct TerminalLabel {
  uint8_t mcuNumber;
  uint8_t terminalNumber;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("mcuNumber", m.mcuNumber);
    v.Number("terminalNumber", m.terminalNumber);
  }
};

struct QOSModeNames {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"guaranteedQOS", "controlledLoad"};
};
using QOSMode = NullChoice<QOSModeNames>;

struct RSVPParameters {
  uint32_t hasQosMode;
  QOSMode qosMode;
  uint32_t hasTokenRate;
  uint32_t tokenRate;
  uint32_t hasBucketSize;
  uint32_t bucketSize;
  uint32_t hasPeakRate;
  uint32_t peakRate;
  uint32_t hasMinPoliced;
  uint32_t minPoliced;
  uint32_t hasMaxPktSize;
  uint32_t maxPktSize;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasQosMode) v.Record("qosMode", m.qosMode);
    if (m.hasTokenRate) v.Number("tokenRate", m.tokenRate);
    if (m.hasBucketSize) v.Number("bucketSize", m.bucketSize);
    if (m.hasPeakRate) v.Number("peakRate", m.peakRate);
    if (m.hasMinPoliced) v.Number("minPoliced", m.minPoliced);
    if (m.hasMaxPktSize) v.Number("maxPktSize", m.maxPktSize);
  }
};

struct ATMParameters {
  uint16_t maxNTUSize;
  uint32_t atmUBR;
  uint32_t atmrtVBR;
  uint32_t atmnrtVBR;
  uint32_t atmABR;
  uint32_t atmCBR;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("maxNTUSize", m.maxNTUSize);
    v.Boolean("atmUBR", m.atmUBR);
    v.Boolean("atmrtVBR", m.atmrtVBR);
    v.Boolean("atmnrtVBR", m.atmnrtVBR);
    v.Boolean("atmABR", m.atmABR);
    v.Boolean("atmCBR", m.atmCBR);
  }
};

struct QOSCapability {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasRsvpParameters;
  RSVPParameters rsvpParameters;
  uint32_t hasAtmParameters;
  ATMParameters atmParameters;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasRsvpParameters) v.Record("rsvpParameters", m.rsvpParameters);
    if (m.hasAtmParameters) v.Record("atmParameters", m.atmParameters);
  }
};

struct MediaTransportType {
  struct AtmAAL5Compressed {
    uint32_t variableDelta;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Boolean("variable-delta", m.variableDelta);
    }
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    AtmAAL5Compressed atmAAL5Compressed;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("atm-AAL5-compressed", m.atmAAL5Compressed);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Null("ip-UDP");
      case 1: return v.Null("ip-TCP");
      case 2: return v.Null("atm-AAL5-UNIDIR");
      case 3: return v.Null("atm-AAL5-BIDIR");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct MediaChannelCapability {
  uint32_t hasMediaTransport;
  MediaTransportType mediaTransport;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasMediaTransport) v.Record("mediaTransport", m.mediaTransport);
  }
};

struct TransportCapability {
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  uint32_t hasQOSCapabilities;
  uint16_t qOSCapabilitiesCount;
  QOSCapability* qOSCapabilities;
  uint32_t hasMediaChannelCapabilities;
  uint16_t mediaChannelCapabilitiesCount;
  MediaChannelCapability* mediaChannelCapabilities;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandard) v.Record("nonStandard", m.nonStandard);
    if (m.hasQOSCapabilities) v.List("qOSCapabilities", KELVRA_LIST(m.qOSCapabilities));
    if (m.hasMediaChannelCapabilities) v.List("mediaChannelCapabilities", KELVRA_LIST(m.mediaChannelCapabilities));
  }
};

struct H2250LogicalChannelParameters {
  // Of an extension alternative only index 1, which no edition of H.245 defines, keeps an octet.
  struct MediaPacketization {
    uint32_t isExtension;
    uint8_t choiceTag;
    uint8_t mediaPacketizationOctet;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (!m.isExtension) return v.Null("h261aVideoPacketization");
      switch (m.choiceTag) {
        case 0: return v.Null("rtpPayloadType");
        case 1: return v.Number("extension-1", m.mediaPacketizationOctet);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
  };

  uint32_t hasNonStandard;
  uint8_t nonStandardCount;
  NonStandardParameter* nonStandard;
  uint8_t sessionID;
  uint32_t hasAssociatedSessionID;
  uint8_t associatedSessionID;
  uint32_t hasMediaChannel;
  TransportAddress mediaChannel;
  uint32_t hasMediaGuaranteedDelivery;
  uint32_t mediaGuaranteedDelivery;
  uint32_t hasMediaControlChannel;
  TransportAddress mediaControlChannel;
  uint32_t hasMediaControlGuaranteedDelivery;
  uint32_t mediaControlGuaranteedDelivery;
  uint32_t hasSilenceSuppression;
  uint32_t silenceSuppression;
  uint32_t hasDestination;
  TerminalLabel destination;
  uint32_t hasDynamicRTPPayloadType;
  uint8_t dynamicRTPPayloadType;
  uint32_t hasMediaPacketization;
  MediaPacketization mediaPacketization;
  uint32_t isExtended;
  uint32_t hasTransportCapability;
  TransportCapability transportCapability;
  uint32_t hasRedundancyEncoding;
  RedundancyEncoding redundancyEncoding;
  uint32_t hasSource;
  TerminalLabel source;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandard) v.List("nonStandard", KELVRA_LIST(m.nonStandard));
    v.Number("sessionID", m.sessionID);
    if (m.hasAssociatedSessionID) v.Number("associatedSessionID", m.associatedSessionID);
    if (m.hasMediaChannel) v.Record("mediaChannel", m.mediaChannel);
    if (m.hasMediaGuaranteedDelivery) v.Boolean("mediaGuaranteedDelivery", m.mediaGuaranteedDelivery);
    if (m.hasMediaControlChannel) v.Record("mediaControlChannel", m.mediaControlChannel);
    if (m.hasMediaControlGuaranteedDelivery)
      v.Boolean("mediaControlGuaranteedDelivery", m.mediaControlGuaranteedDelivery);
    if (m.hasSilenceSuppression) v.Boolean("silenceSuppression", m.silenceSuppression);
    if (m.hasDestination) v.Record("destination", m.destination);
    if (m.hasDynamicRTPPayloadType) v.Number("dynamicRTPPayloadType", m.dynamicRTPPayloadType);
    if (m.hasMediaPacketization) v.Record("mediaPacketization", m.mediaPacketization);
    if (m.hasTransportCapability) v.Record("transportCapability", m.transportCapability);
    if (m.hasRedundancyEncoding) v.Record("redundancyEncoding", m.redundancyEncoding);
    if (m.hasSource) v.Record("source", m.source);
  }
};

struct H2250LogicalChannelAckParameters {
  uint32_t hasNonStandard;
  uint8_t nonStandardCount;
  NonStandardParameter* nonStandard;
  uint32_t hasSessionID;
  uint8_t sessionID;
  uint32_t hasMediaChannel;
  TransportAddress mediaChannel;
  uint32_t hasMediaControlChannel;
  TransportAddress mediaControlChannel;
  uint32_t hasDynamicRTPPayloadType;
  uint8_t dynamicRTPPayloadType;
  uint32_t isExtended;
  uint32_t hasFlowControlToZero;
  uint32_t flowControlToZero;
  uint32_t hasPortNumber;
  uint16_t portNumber;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandard) v.List("nonStandard", KELVRA_LIST(m.nonStandard));
    if (m.hasSessionID) v.Number("sessionID", m.sessionID);
    if (m.hasMediaChannel) v.Record("mediaChannel", m.mediaChannel);
    if (m.hasMediaControlChannel) v.Record("mediaControlChannel", m.mediaControlChannel);
    if (m.hasDynamicRTPPayloadType) v.Number("dynamicRTPPayloadType", m.dynamicRTPPayloadType);
    if (m.hasFlowControlToZero) v.Boolean("flowControlToZero", m.flowControlToZero);
    if (m.hasPortNumber) v.Number("portNumber", m.portNumber);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
