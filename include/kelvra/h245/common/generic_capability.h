// Generic capabilities (H.245), described by parameters.
#pragma once

#include "../capabilities/data_protocol.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct GenericParameter;

struct CapabilityIdentifier {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    ObjectIdentifierValue standard;
    NonStandardParameter h221NonStandard;
    OctetStringValue uuid;
    OctetStringValue domainBased;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(standard, ObjectIdentifier());
    KELVRA_ALTERNATIVE(h221NonStandard, DefinedType());
    KELVRA_ALTERNATIVE(uuid, OctetString(16));
    KELVRA_ALTERNATIVE(domainBased, IA5String(1, 64));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct ParameterIdentifier {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    uint8_t standard;
    NonStandardParameter h221NonStandard;
    OctetStringValue uuid;
    OctetStringValue domainBased;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(standard, Integer(0, 127));
    KELVRA_ALTERNATIVE(h221NonStandard, DefinedType());
    KELVRA_ALTERNATIVE(uuid, OctetString(16));
    KELVRA_ALTERNATIVE(domainBased, IA5String(1, 64));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct ParameterValue {
  struct GenericParameterList {
    uint8_t count;
    GenericParameter* elements;
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    uint8_t booleanArray;
    uint16_t unsignedMin;
    uint16_t unsignedMax;
    uint32_t unsigned32Min;
    uint32_t unsigned32Max;
    OctetStringValue octetString;
    GenericParameterList genericParameter;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(logical);
    KELVRA_ALTERNATIVE(booleanArray, Integer(0, 255));
    KELVRA_ALTERNATIVE(unsignedMin, Integer(0, 65535));
    KELVRA_ALTERNATIVE(unsignedMax, Integer(0, 65535));
    KELVRA_ALTERNATIVE(unsigned32Min, Integer(0, kUnsigned32Maximum));
    KELVRA_ALTERNATIVE(unsigned32Max, Integer(0, kUnsigned32Maximum));
    KELVRA_ALTERNATIVE(octetString, OctetString());
    KELVRA_ALTERNATIVE(genericParameter, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct GenericParameter {
  ParameterIdentifier parameterIdentifier;
  ParameterValue parameterValue;
  uint32_t hasSupersedes;
  uint8_t supersedesCount;
  ParameterIdentifier* supersedes;
  uint32_t isExtended;

  static constexpr bool kRecursive = true;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(parameterIdentifier, DefinedType());
    KELVRA_MEMBER(parameterValue, DefinedType());
    KELVRA_OPTIONAL_LIST(hasSupersedes, supersedes, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct GenericCapability {
  CapabilityIdentifier capabilityIdentifier;
  uint32_t hasMaxBitRate;
  uint32_t maxBitRate;
  uint32_t hasCollapsing;
  uint8_t collapsingCount;
  GenericParameter* collapsing;
  uint32_t hasNonCollapsing;
  uint8_t nonCollapsingCount;
  GenericParameter* nonCollapsing;
  uint32_t hasNonCollapsingRaw;
  OctetStringValue nonCollapsingRaw;
  uint32_t hasTransport;
  DataProtocolCapability transport;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(capabilityIdentifier, DefinedType());
    KELVRA_OPTIONAL(hasMaxBitRate, maxBitRate, Integer(0, kUnsigned32Maximum));
    KELVRA_OPTIONAL_LIST(hasCollapsing, collapsing, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasNonCollapsing, nonCollapsing, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasNonCollapsingRaw, nonCollapsingRaw, OctetString());
    KELVRA_OPTIONAL(hasTransport, transport, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
