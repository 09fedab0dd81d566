// Capabilities for channels over RTP (H.225.0).
#pragma once

#include "../channels/h2250_parameters.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(centralizedControl, Boolean());
    KELVRA_MEMBER(distributedControl, Boolean());
    KELVRA_MEMBER(centralizedAudio, Boolean());
    KELVRA_MEMBER(distributedAudio, Boolean());
    KELVRA_MEMBER(centralizedVideo, Boolean());
    KELVRA_MEMBER(distributedVideo, Boolean());
    KELVRA_OPTIONAL_LIST(hasCentralizedData, centralizedData, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasDistributedData, distributedData, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MultipointCapability {
  uint32_t multicastCapability;
  uint32_t multiUniCastConference;
  uint8_t mediaDistributionCapabilityCount;
  MediaDistributionCapability* mediaDistributionCapability;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(multicastCapability, Boolean());
    KELVRA_MEMBER(multiUniCastConference, Boolean());
    KELVRA_MEMBER_LIST(mediaDistributionCapability, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RTPPayloadType {
  struct PayloadDescriptor {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandardIdentifier;
      uint32_t rfcNumber;  // 1 to 32768, or any value if sent as an extension
      ObjectIdentifierValue oid;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(nonStandardIdentifier, DefinedType());
      KELVRA_ALTERNATIVE(rfcNumber, Named("rfc-number", ExtensibleInteger(1, 32768)));
      KELVRA_ALTERNATIVE(oid, ObjectIdentifier());
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  PayloadDescriptor payloadDescriptor;
  uint32_t hasPayloadType;
  uint8_t payloadType;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(payloadDescriptor, InlineType());
    KELVRA_OPTIONAL(hasPayloadType, payloadType, Integer(0, 127));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MediaPacketizationCapability {
  uint32_t h261aVideoPacketization;
  uint32_t isExtended;
  uint32_t hasRtpPayloadType;
  uint16_t rtpPayloadTypeCount;
  RTPPayloadType* rtpPayloadType;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(h261aVideoPacketization, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasRtpPayloadType, rtpPayloadType, SequenceOf(1, 256, DefinedType()));
  KELVRA_END
};

// Encodings are given as entries of the capability table.
struct RedundancyEncodingCapability {
  RedundancyEncodingMethod redundancyEncodingMethod;
  uint16_t primaryEncoding;
  uint32_t hasSecondaryEncoding;
  uint16_t secondaryEncodingCount;
  uint16_t* secondaryEncoding;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(redundancyEncodingMethod, DefinedType());
    KELVRA_MEMBER(primaryEncoding, Integer(1, 65535));
    KELVRA_OPTIONAL_LIST(hasSecondaryEncoding, secondaryEncoding, SequenceOf(1, 256, Integer(1, 65535)));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H2250Capability {
  struct McCapability {
    uint32_t centralizedConferenceMC;
    uint32_t decentralizedConferenceMC;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(centralizedConferenceMC, Boolean());
      KELVRA_MEMBER(decentralizedConferenceMC, Boolean());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(maximumAudioDelayJitter, Integer(0, 1023));
    KELVRA_MEMBER(receiveMultipointCapability, DefinedType());
    KELVRA_MEMBER(transmitMultipointCapability, DefinedType());
    KELVRA_MEMBER(receiveAndTransmitMultipointCapability, DefinedType());
    KELVRA_MEMBER(mcCapability, InlineType());
    KELVRA_MEMBER(rtcpVideoControlCapability, Boolean());
    KELVRA_MEMBER(mediaPacketizationCapability, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasTransportCapability, transportCapability, DefinedType());
    KELVRA_ADDITION_LIST(hasRedundancyEncodingCapability, redundancyEncodingCapability,
                         SequenceOf(1, 256, DefinedType()));
    KELVRA_ADDITION(hasLogicalChannelSwitchingCapability, logicalChannelSwitchingCapability, Boolean());
    KELVRA_ADDITION(hasT120DynamicPortCapability, t120DynamicPortCapability, Boolean());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
