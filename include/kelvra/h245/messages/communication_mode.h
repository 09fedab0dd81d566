// Communication modes: the sessions of a conference and what each carries.
#pragma once

#include "../channels/h2250_parameters.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct CommunicationModeTableEntry {
  struct DataType {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      VideoCapability videoData;
      AudioCapability audioData;
      DataApplicationCapability data;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(videoData, DefinedType());
      KELVRA_ALTERNATIVE(audioData, DefinedType());
      KELVRA_ALTERNATIVE(data, DefinedType());
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  uint32_t hasNonStandard;
  uint8_t nonStandardCount;
  NonStandardParameter* nonStandard;
  uint8_t sessionID;
  uint32_t hasAssociatedSessionID;
  uint8_t associatedSessionID;
  uint32_t hasTerminalLabel;
  TerminalLabel terminalLabel;
  BMPStringValue sessionDescription;
  DataType dataType;
  uint32_t hasMediaChannel;
  TransportAddress mediaChannel;
  uint32_t hasMediaGuaranteedDelivery;
  uint32_t mediaGuaranteedDelivery;
  uint32_t hasMediaControlChannel;
  TransportAddress mediaControlChannel;
  uint32_t hasMediaControlGuaranteedDelivery;
  uint32_t mediaControlGuaranteedDelivery;
  uint32_t isExtended;
  uint32_t hasRedundancyEncoding;
  RedundancyEncoding redundancyEncoding;
  uint32_t hasSessionDependency;
  uint8_t sessionDependency;
  uint32_t hasDestination;
  TerminalLabel destination;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL_LIST(hasNonStandard, nonStandard, SequenceOf(DefinedType()));
    KELVRA_MEMBER(sessionID, Integer(1, 255));
    KELVRA_OPTIONAL(hasAssociatedSessionID, associatedSessionID, Integer(1, 255));
    KELVRA_OPTIONAL(hasTerminalLabel, terminalLabel, DefinedType());
    KELVRA_MEMBER(sessionDescription, BMPString(1, 128));
    KELVRA_MEMBER(dataType, InlineType());
    KELVRA_OPTIONAL(hasMediaChannel, mediaChannel, DefinedType());
    KELVRA_OPTIONAL(hasMediaGuaranteedDelivery, mediaGuaranteedDelivery, Boolean());
    KELVRA_OPTIONAL(hasMediaControlChannel, mediaControlChannel, DefinedType());
    KELVRA_OPTIONAL(hasMediaControlGuaranteedDelivery, mediaControlGuaranteedDelivery, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasRedundancyEncoding, redundancyEncoding, DefinedType());
    KELVRA_ADDITION(hasSessionDependency, sessionDependency, Integer(1, 255));
    KELVRA_ADDITION(hasDestination, destination, DefinedType());
  KELVRA_END
};

struct CommunicationModeCommand {
  uint16_t communicationModeTableCount;
  CommunicationModeTableEntry* communicationModeTable;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(communicationModeTable, SequenceOf(1, 256, DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CommunicationModeResponse {
  struct CommunicationModeTable {
    uint16_t count;
    CommunicationModeTableEntry* elements;
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    CommunicationModeTable communicationModeTable;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(communicationModeTable, SequenceOf(1, 256, DefinedType()));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
