// Parameters of a channel over RTP (H.225.0).
#pragma once

#include "../common/transport_address.h"
#include "data_type.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct TerminalLabel {
  uint8_t mcuNumber;
  uint8_t terminalNumber;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(mcuNumber, Integer(0, 192));
    KELVRA_MEMBER(terminalNumber, Integer(0, 192));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

KELVRA_NULL_CHOICE(NullChoice, QOSMode, 2, "guaranteedQOS", "controlledLoad");

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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasQosMode, qosMode, DefinedType());
    KELVRA_OPTIONAL(hasTokenRate, tokenRate, Integer(1, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasBucketSize, bucketSize, Integer(1, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasPeakRate, peakRate, Integer(1, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasMinPoliced, minPoliced, Integer(1, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasMaxPktSize, maxPktSize, Integer(1, kUnsigned32Maximum));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct ATMParameters {
  uint16_t maxNTUSize;
  uint32_t atmUBR;
  uint32_t atmrtVBR;
  uint32_t atmnrtVBR;
  uint32_t atmABR;
  uint32_t atmCBR;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(maxNTUSize, Integer(0, 65535));
    KELVRA_MEMBER(atmUBR, Boolean());
    KELVRA_MEMBER(atmrtVBR, Boolean());
    KELVRA_MEMBER(atmnrtVBR, Boolean());
    KELVRA_MEMBER(atmABR, Boolean());
    KELVRA_MEMBER(atmCBR, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct QOSCapability {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasRsvpParameters;
  RSVPParameters rsvpParameters;
  uint32_t hasAtmParameters;
  ATMParameters atmParameters;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL(hasRsvpParameters, rsvpParameters, DefinedType());
    KELVRA_OPTIONAL(hasAtmParameters, atmParameters, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MediaTransportType {
  struct AtmAAL5Compressed {
    uint32_t variableDelta;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(variableDelta, Named("variable-delta", Boolean()));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    AtmAAL5Compressed atmAAL5Compressed;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(ip-UDP);
    KELVRA_NULL(ip-TCP);
    KELVRA_NULL(atm-AAL5-UNIDIR);
    KELVRA_NULL(atm-AAL5-BIDIR);
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(atmAAL5Compressed, Named("atm-AAL5-compressed", InlineType()));
  KELVRA_END
};

struct MediaChannelCapability {
  uint32_t hasMediaTransport;
  MediaTransportType mediaTransport;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasMediaTransport, mediaTransport, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandard, nonStandard, DefinedType());
    KELVRA_OPTIONAL_LIST(hasQOSCapabilities, qOSCapabilities, SequenceOf(1, 256, DefinedType()));
    KELVRA_OPTIONAL_LIST(hasMediaChannelCapabilities, mediaChannelCapabilities, SequenceOf(1, 256, DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H2250LogicalChannelParameters {
  // The only extension alternative that keeps an octet is index 1, which no edition of H.245 defines.
  struct MediaPacketization {
    uint32_t isExtension;
    uint8_t choiceTag;
    uint8_t mediaPacketizationOctet;
    KELVRA_CHOICE(choiceTag)
      KELVRA_NULL(h261aVideoPacketization);
      KELVRA_EXTENSION(isExtension);
      KELVRA_PASSED_OVER(rtpPayloadType);
      KELVRA_ALTERNATIVE(mediaPacketizationOctet, Named("extension-1", Integer(0, 255)));
    KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL_LIST(hasNonStandard, nonStandard, SequenceOf(DefinedType()));
    KELVRA_MEMBER(sessionID, Integer(0, 255));
    KELVRA_OPTIONAL(hasAssociatedSessionID, associatedSessionID, Integer(1, 255));
    KELVRA_OPTIONAL(hasMediaChannel, mediaChannel, DefinedType());
    KELVRA_OPTIONAL(hasMediaGuaranteedDelivery, mediaGuaranteedDelivery, Boolean());
    KELVRA_OPTIONAL(hasMediaControlChannel, mediaControlChannel, DefinedType());
    KELVRA_OPTIONAL(hasMediaControlGuaranteedDelivery, mediaControlGuaranteedDelivery, Boolean());
    KELVRA_OPTIONAL(hasSilenceSuppression, silenceSuppression, Boolean());
    KELVRA_OPTIONAL(hasDestination, destination, DefinedType());
    KELVRA_OPTIONAL(hasDynamicRTPPayloadType, dynamicRTPPayloadType, Integer(96, 127));
    KELVRA_OPTIONAL(hasMediaPacketization, mediaPacketization, InlineType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasTransportCapability, transportCapability, DefinedType());
    KELVRA_ADDITION(hasRedundancyEncoding, redundancyEncoding, DefinedType());
    KELVRA_ADDITION(hasSource, source, DefinedType());
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL_LIST(hasNonStandard, nonStandard, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasSessionID, sessionID, Integer(1, 255));
    KELVRA_OPTIONAL(hasMediaChannel, mediaChannel, DefinedType());
    KELVRA_OPTIONAL(hasMediaControlChannel, mediaControlChannel, DefinedType());
    KELVRA_OPTIONAL(hasDynamicRTPPayloadType, dynamicRTPPayloadType, Integer(96, 127));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasFlowControlToZero, flowControlToZero, Boolean());
    KELVRA_ADDITION(hasPortNumber, portNumber, Integer(0, 65535));
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
