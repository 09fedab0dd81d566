// Generic data and feature sets.
#pragma once

#include "addresses.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct EnumeratedParameter;
struct GenericData;

struct GenericIdentifier {
  uint8_t choiceTag;
  union {
    uint32_t standard;
    ObjectIdentifierValue oid;
    OctetStringValue nonStandard;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(standard, ExtensibleInteger(0, 16383));
    KELVRA_ALTERNATIVE(oid, ObjectIdentifier());
    KELVRA_ALTERNATIVE(nonStandard, DefinedType(OctetString(16)));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct Content {
  struct CompoundList {
    uint16_t count;
    EnumeratedParameter* elements;
  };
  struct NestedList {
    uint8_t count;
    GenericData* elements;
  };

  uint8_t choiceTag;
  union {
    OctetStringValue raw;
    OctetStringValue text;
    BMPStringValue unicode;
    uint32_t bool_;
    uint8_t number8;
    uint16_t number16;
    uint32_t number32;
    GenericIdentifier id;
    AliasAddress alias;
    TransportAddress transport;
    CompoundList compound;
    NestedList nested;
  };
  uint32_t isExtension;

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(raw, OctetString());
    KELVRA_ALTERNATIVE(text, GeneralString());
    KELVRA_ALTERNATIVE(unicode, BMPString());
    KELVRA_ALTERNATIVE(bool_, Named("bool", Boolean()));
    KELVRA_ALTERNATIVE(number8, Integer(0, 255));
    KELVRA_ALTERNATIVE(number16, Integer(0, 65535));
    KELVRA_ALTERNATIVE(number32, Integer(0, kUnsigned32Maximum));
    KELVRA_ALTERNATIVE(id, DefinedType());
    KELVRA_ALTERNATIVE(alias, DefinedType());
    KELVRA_ALTERNATIVE(transport, DefinedType());
    KELVRA_ALTERNATIVE(compound, SequenceOf(1, 512, DefinedType()));
    KELVRA_ALTERNATIVE(nested, SequenceOf(1, 16, DefinedType()));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct EnumeratedParameter {
  GenericIdentifier id;
  uint32_t hasContent;
  Content content;
  uint32_t isExtended;
  static constexpr bool kRecursive = true;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(id, DefinedType());
    KELVRA_OPTIONAL(hasContent, content, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct GenericData {
  GenericIdentifier id;
  uint32_t hasParameters;
  uint16_t parametersCount;
  EnumeratedParameter* parameters;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(id, DefinedType());
    KELVRA_OPTIONAL_LIST(hasParameters, parameters, SequenceOf(1, 512, DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

using FeatureDescriptor = GenericData;

struct FeatureSet {
  uint32_t replacementFeatureSet;
  uint32_t hasNeededFeatures;
  uint8_t neededFeaturesCount;
  FeatureDescriptor* neededFeatures;
  uint32_t hasDesiredFeatures;
  uint8_t desiredFeaturesCount;
  FeatureDescriptor* desiredFeatures;
  uint32_t hasSupportedFeatures;
  uint8_t supportedFeaturesCount;
  FeatureDescriptor* supportedFeatures;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(replacementFeatureSet, Boolean());
    KELVRA_OPTIONAL_LIST(hasNeededFeatures, neededFeatures, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasDesiredFeatures, desiredFeatures, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasSupportedFeatures, supportedFeatures, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
