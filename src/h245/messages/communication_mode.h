// Communication modes: the sessions of a conference and what each carries.
#pragma once

#include <stdint.h>

#include "../channels/h2250_parameters.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct CommunicationModeTableEntry {
  struct DataType {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      VideoCapability videoData;
      AudioCapability audioData;
      DataApplicationCapability data;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Record("videoData", m.videoData);
        case 1: return v.Record("audioData", m.audioData);
        case 2: return v.Record("data", m.data);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandard) v.List("nonStandard", KELVRA_LIST(m.nonStandard));
    v.Number("sessionID", m.sessionID);
    if (m.hasAssociatedSessionID) v.Number("associatedSessionID", m.associatedSessionID);
    if (m.hasTerminalLabel) v.Record("terminalLabel", m.terminalLabel);
    v.Characters16("sessionDescription", m.sessionDescription);
    v.Record("dataType", m.dataType);
    if (m.hasMediaChannel) v.Record("mediaChannel", m.mediaChannel);
    if (m.hasMediaGuaranteedDelivery) v.Boolean("mediaGuaranteedDelivery", m.mediaGuaranteedDelivery);
    if (m.hasMediaControlChannel) v.Record("mediaControlChannel", m.mediaControlChannel);
    if (m.hasMediaControlGuaranteedDelivery)
      v.Boolean("mediaControlGuaranteedDelivery", m.mediaControlGuaranteedDelivery);
    if (m.hasRedundancyEncoding) v.Record("redundancyEncoding", m.redundancyEncoding);
    if (m.hasSessionDependency) v.Number("sessionDependency", m.sessionDependency);
    if (m.hasDestination) v.Record("destination", m.destination);
  }
};

struct CommunicationModeCommand {
  uint16_t communicationModeTableCount;
  CommunicationModeTableEntry* communicationModeTable;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.List("communicationModeTable", KELVRA_LIST(m.communicationModeTable));
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.List("communicationModeTable", ListOf(m.communicationModeTable));
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
