// Streams that carry or protect several others, and their sets of capabilities.
#pragma once

#include "multiplex_format.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

// Entries of the capability table, of which only one can be in use at a time.
struct AlternativeCapabilitySet {
  uint16_t entryCount;
  uint16_t* entries;
  KELVRA_SEQUENCE
    // The count has 255 values, so unlike that of SIZE (1..256) it is not aligned. Its 8 bits can still encode 256.
    KELVRA_ELEMENTS(entryCount, entries, SequenceOf(1, 255, Integer(1, 65535)));
  KELVRA_END
};

struct MultiplexedStreamCapability {
  MultiplexFormat multiplexFormat;
  uint32_t controlOnMuxStream;
  uint32_t hasCapabilityOnMuxStream;
  uint16_t capabilityOnMuxStreamCount;
  AlternativeCapabilitySet* capabilityOnMuxStream;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(multiplexFormat, DefinedType());
    KELVRA_MEMBER(controlOnMuxStream, Boolean());
    KELVRA_OPTIONAL_LIST(hasCapabilityOnMuxStream, capabilityOnMuxStream, SequenceOf(1, 256, DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MultiplePayloadStreamCapability {
  uint16_t capabilitiesCount;
  AlternativeCapabilitySet* capabilities;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(capabilities, SequenceOf(1, 256, DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct FECCapability {
  struct Rfc2733 {
    struct SeparateStream {
      uint32_t separatePort;
      uint32_t samePort;
      uint32_t isExtended;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(separatePort, Boolean());
        KELVRA_MEMBER(samePort, Boolean());
        KELVRA_EXTENSION(isExtended);
      KELVRA_END
    };

    uint32_t redundancyEncoding;
    SeparateStream separateStream;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(redundancyEncoding, Boolean());
      KELVRA_MEMBER(separateStream, InlineType());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    Rfc2733 rfc2733;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(rfc2733, InlineType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
