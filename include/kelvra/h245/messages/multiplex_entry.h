// Entries of the H.223 multiplex table: sending them, asking for them, and the answers.
#pragma once

#include "../../list.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct MultiplexElement {
  struct Type {
    struct SubElementList {
      uint8_t count;
      MultiplexElement* elements;
    };

    uint8_t choiceTag;
    union {
      uint16_t logicalChannelNumber;
      SubElementList subElementList;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(logicalChannelNumber, Integer(0, 65535));
      KELVRA_ALTERNATIVE(subElementList, SequenceOf(2, 255, DefinedType()));
    KELVRA_END
  };

  struct RepeatCount {
    uint8_t choiceTag;
    union {
      uint16_t finite;
    };
    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(finite, Integer(1, 65535));
      KELVRA_NULL(untilClosingFlag);
    KELVRA_END
  };

  Type type;
  RepeatCount repeatCount;

  static constexpr bool kRecursive = true;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(type, InlineType());
    KELVRA_MEMBER(repeatCount, InlineType());
  KELVRA_END
};

struct MultiplexEntryDescriptor {
  uint8_t multiplexTableEntryNumber;
  uint32_t hasElementList;
  uint16_t elementListCount;
  MultiplexElement* elementList;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(multiplexTableEntryNumber, Integer(1, 15));
    KELVRA_OPTIONAL_LIST(hasElementList, elementList, SequenceOf(1, 256, DefinedType()));
  KELVRA_END
};

struct MultiplexEntrySend {
  uint8_t sequenceNumber;
  uint8_t multiplexEntryDescriptorsCount;
  MultiplexEntryDescriptor* multiplexEntryDescriptors;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_MEMBER_LIST(multiplexEntryDescriptors, SequenceOf(1, 15, DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MultiplexEntrySendAck {
  uint8_t sequenceNumber;
  uint8_t multiplexTableEntryNumberCount;
  uint8_t* multiplexTableEntryNumber;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_MEMBER_LIST(multiplexTableEntryNumber, SequenceOf(1, 15, Integer(1, 15)));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

// Why one entry was refused; the causes depend on the request.
template <class CauseNames>
struct MultiplexEntryRejection {
  uint8_t multiplexTableEntryNumber;
  NullChoice<CauseNames> cause;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(multiplexTableEntryNumber, Integer(1, 15));
    KELVRA_MEMBER(cause, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

KELVRA_NULL_CHOICE(NullChoice, MultiplexEntrySendCause, 2, "unspecifiedCause", "descriptorTooComplex");
using MultiplexEntryRejectionDescriptions = MultiplexEntryRejection<MultiplexEntrySendCauseNames>;

KELVRA_NULL_CHOICE(NullChoice, RequestMultiplexEntryCause, 1, "unspecifiedCause");
using RequestMultiplexEntryRejectionDescriptions = MultiplexEntryRejection<RequestMultiplexEntryCauseNames>;

struct MultiplexEntrySendReject {
  uint8_t sequenceNumber;
  uint8_t rejectionDescriptionsCount;
  MultiplexEntryRejectionDescriptions* rejectionDescriptions;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_MEMBER_LIST(rejectionDescriptions, SequenceOf(1, 15, InlineType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MultiplexEntrySendRelease {
  uint8_t multiplexTableEntryNumberCount;
  uint8_t* multiplexTableEntryNumber;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(multiplexTableEntryNumber, SequenceOf(1, 15, Integer(1, 15)));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RequestMultiplexEntry {
  uint8_t entryNumbersCount;
  uint8_t* entryNumbers;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(entryNumbers, SequenceOf(1, 15, Integer(1, 15)));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

using RequestMultiplexEntryAck = RequestMultiplexEntry;
using RequestMultiplexEntryRelease = RequestMultiplexEntry;

struct RequestMultiplexEntryReject {
  uint8_t entryNumbersCount;
  uint8_t* entryNumbers;
  uint8_t rejectionDescriptionsCount;
  RequestMultiplexEntryRejectionDescriptions* rejectionDescriptions;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(entryNumbers, SequenceOf(1, 15, Integer(1, 15)));
    KELVRA_MEMBER_LIST(rejectionDescriptions, SequenceOf(1, 15, InlineType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
