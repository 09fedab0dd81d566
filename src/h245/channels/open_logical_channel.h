// Opening a logical channel, and its acknowledgement.
#pragma once

#include <stdint.h>

#include "h2250_parameters.h"
#include "multiplex_parameters.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct OpenLogicalChannel {
  struct ForwardLogicalChannelParameters {
    struct MultiplexParameters {
      uint32_t isExtension;
      uint8_t choiceTag;
      union {
        H222LogicalChannelParameters h222LogicalChannelParameters;
        H223LogicalChannelParameters h223LogicalChannelParameters;
        V76LogicalChannelParameters v76LogicalChannelParameters;
        H2250LogicalChannelParameters h2250LogicalChannelParameters;
      };

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        if (m.isExtension) {
          switch (m.choiceTag) {
            case 0: return v.Record("h2250LogicalChannelParameters", m.h2250LogicalChannelParameters);
            case 1: return v.Null("none");
            default: return v.UnknownExtension(m.choiceTag);
          }
        }
        switch (m.choiceTag) {
          case 0: return v.Record("h222LogicalChannelParameters", m.h222LogicalChannelParameters);
          case 1: return v.Record("h223LogicalChannelParameters", m.h223LogicalChannelParameters);
          case 2: return v.Record("v76LogicalChannelParameters", m.v76LogicalChannelParameters);
          default: return v.UnknownRoot(m.choiceTag);
        }
      }
    };

    uint32_t hasPortNumber;
    uint16_t portNumber;
    DataType dataType;
    MultiplexParameters multiplexParameters;
    uint32_t isExtended;
    uint32_t hasForwardLogicalChannelDependency;
    uint16_t forwardLogicalChannelDependency;
    uint32_t hasReplacementFor;
    uint16_t replacementFor;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasPortNumber) v.Number("portNumber", m.portNumber);
      v.Record("dataType", m.dataType);
      v.Record("multiplexParameters", m.multiplexParameters);
      if (m.hasForwardLogicalChannelDependency)
        v.Number("forwardLogicalChannelDependency", m.forwardLogicalChannelDependency);
      if (m.hasReplacementFor) v.Number("replacementFor", m.replacementFor);
    }
  };

  struct ReverseLogicalChannelParameters {
    struct MultiplexParameters {
      uint32_t isExtension;
      uint8_t choiceTag;
      union {
        H223LogicalChannelParameters h223LogicalChannelParameters;
        V76LogicalChannelParameters v76LogicalChannelParameters;
        H2250LogicalChannelParameters h2250LogicalChannelParameters;
      };

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        if (m.isExtension) {
          switch (m.choiceTag) {
            case 0: return v.Record("h2250LogicalChannelParameters", m.h2250LogicalChannelParameters);
            default: return v.UnknownExtension(m.choiceTag);
          }
        }
        switch (m.choiceTag) {
          case 0: return v.Record("h223LogicalChannelParameters", m.h223LogicalChannelParameters);
          case 1: return v.Record("v76LogicalChannelParameters", m.v76LogicalChannelParameters);
          default: return v.UnknownRoot(m.choiceTag);
        }
      }
    };

    DataType dataType;
    uint32_t hasMultiplexParameters;
    MultiplexParameters multiplexParameters;
    uint32_t isExtended;
    uint32_t hasReverseLogicalChannelDependency;
    uint16_t reverseLogicalChannelDependency;
    uint32_t hasReplacementFor;
    uint16_t replacementFor;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("dataType", m.dataType);
      if (m.hasMultiplexParameters) v.Record("multiplexParameters", m.multiplexParameters);
      if (m.hasReverseLogicalChannelDependency)
        v.Number("reverseLogicalChannelDependency", m.reverseLogicalChannelDependency);
      if (m.hasReplacementFor) v.Number("replacementFor", m.replacementFor);
    }
  };

  uint16_t forwardLogicalChannelNumber;
  ForwardLogicalChannelParameters forwardLogicalChannelParameters;
  uint32_t hasReverseLogicalChannelParameters;
  ReverseLogicalChannelParameters reverseLogicalChannelParameters;
  uint32_t isExtended;
  uint32_t hasSeparateStack;
  NetworkAccessParameters separateStack;
  uint32_t hasEncryptionSync;
  EncryptionSync encryptionSync;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("forwardLogicalChannelNumber", m.forwardLogicalChannelNumber);
    v.Record("forwardLogicalChannelParameters", m.forwardLogicalChannelParameters);
    if (m.hasReverseLogicalChannelParameters)
      v.Record("reverseLogicalChannelParameters", m.reverseLogicalChannelParameters);
    if (m.hasSeparateStack) v.Record("separateStack", m.separateStack);
    if (m.hasEncryptionSync) v.Record("encryptionSync", m.encryptionSync);
  }
};

struct OpenLogicalChannelAck {
  struct ReverseLogicalChannelParameters {
    struct MultiplexParameters {
      uint32_t isExtension;
      uint8_t choiceTag;
      union {
        H222LogicalChannelParameters h222LogicalChannelParameters;
        H2250LogicalChannelParameters h2250LogicalChannelParameters;
      };

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        if (m.isExtension) {
          switch (m.choiceTag) {
            case 0: return v.Record("h2250LogicalChannelParameters", m.h2250LogicalChannelParameters);
            default: return v.UnknownExtension(m.choiceTag);
          }
        }
        switch (m.choiceTag) {
          case 0: return v.Record("h222LogicalChannelParameters", m.h222LogicalChannelParameters);
          default: return v.UnknownRoot(m.choiceTag);
        }
      }
    };

    uint16_t reverseLogicalChannelNumber;
    uint32_t hasPortNumber;
    uint16_t portNumber;
    uint32_t hasMultiplexParameters;
    MultiplexParameters multiplexParameters;
    uint32_t isExtended;
    uint32_t hasReplacementFor;
    uint16_t replacementFor;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("reverseLogicalChannelNumber", m.reverseLogicalChannelNumber);
      if (m.hasPortNumber) v.Number("portNumber", m.portNumber);
      if (m.hasMultiplexParameters) v.Record("multiplexParameters", m.multiplexParameters);
      if (m.hasReplacementFor) v.Number("replacementFor", m.replacementFor);
    }
  };

  struct ForwardMultiplexAckParameters {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      H2250LogicalChannelAckParameters h2250LogicalChannelAckParameters;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Record("h2250LogicalChannelAckParameters", m.h2250LogicalChannelAckParameters);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  uint16_t forwardLogicalChannelNumber;
  uint32_t hasReverseLogicalChannelParameters;
  ReverseLogicalChannelParameters reverseLogicalChannelParameters;
  uint32_t isExtended;
  uint32_t hasSeparateStack;
  NetworkAccessParameters separateStack;
  uint32_t hasForwardMultiplexAckParameters;
  ForwardMultiplexAckParameters forwardMultiplexAckParameters;
  uint32_t hasEncryptionSync;
  EncryptionSync encryptionSync;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("forwardLogicalChannelNumber", m.forwardLogicalChannelNumber);
    if (m.hasReverseLogicalChannelParameters)
      v.Record("reverseLogicalChannelParameters", m.reverseLogicalChannelParameters);
    if (m.hasSeparateStack) v.Record("separateStack", m.separateStack);
    if (m.hasForwardMultiplexAckParameters) v.Record("forwardMultiplexAckParameters", m.forwardMultiplexAckParameters);
    if (m.hasEncryptionSync) v.Record("encryptionSync", m.encryptionSync);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
