// Capabilities that are described by parameters (H.245 generic capabilities).
#pragma once

#include <stdint.h>

#include "../capabilities/data_protocol.h"

namespace kelvra::h245 {

struct GenericParameter;

#pragma pack(push, 1)

struct CapabilityIdentifier {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    ObjectIdentifierValue standard;
    NonStandardParameter h221NonStandard;
    OctetStringValue uuid;
    OctetStringValue domainBased;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.ObjectIdentifier("standard", m.standard);
      case 1: return v.Record("h221NonStandard", m.h221NonStandard);
      case 2: return WalkOctets(v, "uuid", m.uuid);
      case 3: return WalkOctets(v, "domainBased", m.domainBased, OctetNotation::kCharacters);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Number("standard", m.standard);
      case 1: return v.Record("h221NonStandard", m.h221NonStandard);
      case 2: return WalkOctets(v, "uuid", m.uuid);
      case 3: return WalkOctets(v, "domainBased", m.domainBased, OctetNotation::kCharacters);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Null("logical");
      case 1: return v.Number("booleanArray", m.booleanArray);
      case 2: return v.Number("unsignedMin", m.unsignedMin);
      case 3: return v.Number("unsignedMax", m.unsignedMax);
      case 4: return v.Number("unsigned32Min", m.unsigned32Min);
      case 5: return v.Number("unsigned32Max", m.unsigned32Max);
      case 6: return WalkOctets(v, "octetString", m.octetString);
      case 7: return v.List("genericParameter", ListOf(m.genericParameter));
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct GenericParameter {
  ParameterIdentifier parameterIdentifier;
  ParameterValue parameterValue;
  uint32_t hasSupersedes;
  uint8_t supersedesCount;
  ParameterIdentifier* supersedes;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("parameterIdentifier", m.parameterIdentifier);
    v.Record("parameterValue", m.parameterValue);
    if (m.hasSupersedes) v.List("supersedes", KELVRA_LIST(m.supersedes));
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("capabilityIdentifier", m.capabilityIdentifier);
    if (m.hasMaxBitRate) v.Number("maxBitRate", m.maxBitRate);
    if (m.hasCollapsing) v.List("collapsing", KELVRA_LIST(m.collapsing));
    if (m.hasNonCollapsing) v.List("nonCollapsing", KELVRA_LIST(m.nonCollapsing));
    if (m.hasNonCollapsingRaw) WalkOctets(v, "nonCollapsingRaw", m.nonCollapsingRaw);
    if (m.hasTransport) v.Record("transport", m.transport);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
