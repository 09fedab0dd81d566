// Opening a logical channel, and its acknowledgement.
#pragma once

#include "h2250_parameters.h"
#include "multiplex_parameters.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

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

      KELVRA_CHOICE(choiceTag)
        KELVRA_ALTERNATIVE(h222LogicalChannelParameters, DefinedType());
        KELVRA_ALTERNATIVE(h223LogicalChannelParameters, DefinedType());
        KELVRA_ALTERNATIVE(v76LogicalChannelParameters, DefinedType());
        KELVRA_EXTENSION(isExtension);
        KELVRA_ALTERNATIVE(h2250LogicalChannelParameters, DefinedType());
        KELVRA_PASSED_OVER(none);  // unlike other known NULLs, takes no slot in the ring of open types
      KELVRA_END
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

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasPortNumber, portNumber, Integer(0, 65535));
      KELVRA_MEMBER(dataType, DefinedType());
      KELVRA_MEMBER(multiplexParameters, InlineType());
      KELVRA_EXTENSION(isExtended);
      KELVRA_ADDITION(hasForwardLogicalChannelDependency, forwardLogicalChannelDependency, Integer(1, 65535));
      KELVRA_ADDITION(hasReplacementFor, replacementFor, Integer(1, 65535));
    KELVRA_END
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

      KELVRA_CHOICE(choiceTag)
        KELVRA_ALTERNATIVE(h223LogicalChannelParameters, DefinedType());
        KELVRA_ALTERNATIVE(v76LogicalChannelParameters, DefinedType());
        KELVRA_EXTENSION(isExtension);
        KELVRA_ALTERNATIVE(h2250LogicalChannelParameters, DefinedType());
      KELVRA_END
    };

    DataType dataType;
    uint32_t hasMultiplexParameters;
    MultiplexParameters multiplexParameters;
    uint32_t isExtended;
    uint32_t hasReverseLogicalChannelDependency;
    uint16_t reverseLogicalChannelDependency;
    uint32_t hasReplacementFor;
    uint16_t replacementFor;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(dataType, DefinedType());
      KELVRA_OPTIONAL(hasMultiplexParameters, multiplexParameters, InlineType());
      KELVRA_EXTENSION(isExtended);
      KELVRA_ADDITION(hasReverseLogicalChannelDependency, reverseLogicalChannelDependency, Integer(1, 65535));
      KELVRA_ADDITION(hasReplacementFor, replacementFor, Integer(1, 65535));
    KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(forwardLogicalChannelNumber, Integer(1, 65535));
    KELVRA_MEMBER(forwardLogicalChannelParameters, InlineType());
    KELVRA_OPTIONAL(hasReverseLogicalChannelParameters, reverseLogicalChannelParameters, InlineType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasSeparateStack, separateStack, DefinedType());
    KELVRA_ADDITION(hasEncryptionSync, encryptionSync, DefinedType());
  KELVRA_END
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

      KELVRA_CHOICE(choiceTag)
        KELVRA_ALTERNATIVE(h222LogicalChannelParameters, DefinedType());
        KELVRA_EXTENSION(isExtension);
        KELVRA_ALTERNATIVE(h2250LogicalChannelParameters, DefinedType());
      KELVRA_END
    };

    uint16_t reverseLogicalChannelNumber;
    uint32_t hasPortNumber;
    uint16_t portNumber;
    uint32_t hasMultiplexParameters;
    MultiplexParameters multiplexParameters;
    uint32_t isExtended;
    uint32_t hasReplacementFor;
    uint16_t replacementFor;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(reverseLogicalChannelNumber, Integer(1, 65535));
      KELVRA_OPTIONAL(hasPortNumber, portNumber, Integer(0, 65535));
      KELVRA_OPTIONAL(hasMultiplexParameters, multiplexParameters, InlineType());
      KELVRA_EXTENSION(isExtended);
      KELVRA_ADDITION(hasReplacementFor, replacementFor, Integer(1, 65535));
    KELVRA_END
  };

  struct ForwardMultiplexAckParameters {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      H2250LogicalChannelAckParameters h2250LogicalChannelAckParameters;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(h2250LogicalChannelAckParameters, DefinedType());
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(forwardLogicalChannelNumber, Integer(1, 65535));
    KELVRA_OPTIONAL(hasReverseLogicalChannelParameters, reverseLogicalChannelParameters, InlineType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasSeparateStack, separateStack, DefinedType());
    KELVRA_ADDITION(hasForwardMultiplexAckParameters, forwardMultiplexAckParameters, InlineType());
    KELVRA_ADDITION(hasEncryptionSync, encryptionSync, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
