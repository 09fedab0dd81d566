// Generic data and feature sets.
#pragma once

#include <stdint.h>

#include "addresses.h"

namespace kelvra::h225 {

struct EnumeratedParameter;
struct GenericData;

#pragma pack(push, 1)

struct GenericIdentifier {
  uint8_t choiceTag;
  union {
    uint32_t standard;
    ObjectIdentifierValue oid;
    OctetStringValue nonStandard;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Number("standard", m.standard);
      case 1: return v.ObjectIdentifier("oid", m.oid);
      case 2: return WalkOctets(v, "nonStandard", m.nonStandard);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return WalkOctets(v, "raw", m.raw);
      case 1: return WalkOctets(v, "text", m.text, OctetNotation::kCharacters);
      case 2: return v.Characters16("unicode", m.unicode);
      case 3: return v.Boolean("bool", m.bool_);
      case 4: return v.Number("number8", m.number8);
      case 5: return v.Number("number16", m.number16);
      case 6: return v.Number("number32", m.number32);
      case 7: return v.Record("id", m.id);
      case 8: return v.Record("alias", m.alias);
      case 9: return v.Record("transport", m.transport);
      case 10: return v.List("compound", ListOf(m.compound));
      case 11: return v.List("nested", ListOf(m.nested));
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct EnumeratedParameter {
  GenericIdentifier id;
  uint32_t hasContent;
  Content content;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("id", m.id);
    if (m.hasContent) v.Record("content", m.content);
  }
};

struct GenericData {
  GenericIdentifier id;
  uint32_t hasParameters;
  uint16_t parametersCount;
  EnumeratedParameter* parameters;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("id", m.id);
    if (m.hasParameters) v.List("parameters", KELVRA_LIST(m.parameters));
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("replacementFeatureSet", m.replacementFeatureSet);
    if (m.hasNeededFeatures) v.List("neededFeatures", KELVRA_LIST(m.neededFeatures));
    if (m.hasDesiredFeatures) v.List("desiredFeatures", KELVRA_LIST(m.desiredFeatures));
    if (m.hasSupportedFeatures) v.List("supportedFeatures", KELVRA_LIST(m.supportedFeatures));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
