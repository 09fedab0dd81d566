// Entries of the H.223 multiplex table: sending them, asking for them, and the answers.
#pragma once

#include <stdint.h>

#include "../../record/list.h"
#include "../../record/null_choice.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      switch (m.choiceTag) {
        case 0: return v.Number("logicalChannelNumber", m.logicalChannelNumber);
        case 1: return v.List("subElementList", ListOf(m.subElementList));
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  struct RepeatCount {
    uint8_t choiceTag;
    union {
      uint16_t finite;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      switch (m.choiceTag) {
        case 0: return v.Number("finite", m.finite);
        case 1: return v.Null("untilClosingFlag");
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  Type type;
  RepeatCount repeatCount;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("type", m.type);
    v.Record("repeatCount", m.repeatCount);
  }
};

struct MultiplexEntryDescriptor {
  uint8_t multiplexTableEntryNumber;
  uint32_t hasElementList;
  uint16_t elementListCount;
  MultiplexElement* elementList;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("multiplexTableEntryNumber", m.multiplexTableEntryNumber);
    if (m.hasElementList) v.List("elementList", KELVRA_LIST(m.elementList));
  }
};

struct MultiplexEntrySend {
  uint8_t sequenceNumber;
  uint8_t multiplexEntryDescriptorsCount;
  MultiplexEntryDescriptor* multiplexEntryDescriptors;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
    v.List("multiplexEntryDescriptors", KELVRA_LIST(m.multiplexEntryDescriptors));
  }
};

struct MultiplexEntrySendAck {
  uint8_t sequenceNumber;
  uint8_t multiplexTableEntryNumberCount;
  uint8_t* multiplexTableEntryNumber;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
    v.Numbers("multiplexTableEntryNumber", KELVRA_LIST(m.multiplexTableEntryNumber));
  }
};

// Why one entry was refused; the causes depend on what was asked for.
template <class CauseNames>
struct MultiplexEntryRejection {
  uint8_t multiplexTableEntryNumber;
  NullChoice<CauseNames> cause;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("multiplexTableEntryNumber", m.multiplexTableEntryNumber);
    v.Record("cause", m.cause);
  }
};

struct MultiplexEntrySendCauseNames {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"unspecifiedCause", "descriptorTooComplex"};
};
using MultiplexEntryRejectionDescriptions = MultiplexEntryRejection<MultiplexEntrySendCauseNames>;

struct RequestMultiplexEntryCauseNames {
  static constexpr uint32_t kRoots = 1;
  static constexpr const char* kAlternatives[] = {"unspecifiedCause"};
};
using RequestMultiplexEntryRejectionDescriptions = MultiplexEntryRejection<RequestMultiplexEntryCauseNames>;

struct MultiplexEntrySendReject {
  uint8_t sequenceNumber;
  uint8_t rejectionDescriptionsCount;
  MultiplexEntryRejectionDescriptions* rejectionDescriptions;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
    v.List("rejectionDescriptions", KELVRA_LIST(m.rejectionDescriptions));
  }
};

struct MultiplexEntrySendRelease {
  uint8_t multiplexTableEntryNumberCount;
  uint8_t* multiplexTableEntryNumber;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Numbers("multiplexTableEntryNumber", KELVRA_LIST(m.multiplexTableEntryNumber));
  }
};

struct RequestMultiplexEntry {
  uint8_t entryNumbersCount;
  uint8_t* entryNumbers;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Numbers("entryNumbers", KELVRA_LIST(m.entryNumbers));
  }
};

using RequestMultiplexEntryAck = RequestMultiplexEntry;
using RequestMultiplexEntryRelease = RequestMultiplexEntry;

struct RequestMultiplexEntryReject {
  uint8_t entryNumbersCount;
  uint8_t* entryNumbers;
  uint8_t rejectionDescriptionsCount;
  RequestMultiplexEntryRejectionDescriptions* rejectionDescriptions;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Numbers("entryNumbers", KELVRA_LIST(m.entryNumbers));
    v.List("rejectionDescriptions", KELVRA_LIST(m.rejectionDescriptions));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
