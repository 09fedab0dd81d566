// What an endpoint is, who made it, and the protocols it supports.
#pragma once

#include <stdint.h>

#include "../../h245/capabilities/data_protocol.h"
#include "addresses.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct VendorIdentifier {
  H221NonStandard vendor;
  uint32_t hasProductId;
  OctetStringValue productId;
  uint32_t hasVersionId;
  OctetStringValue versionId;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("vendor", m.vendor);
    if (m.hasProductId) WalkOctets(v, "productId", m.productId);
    if (m.hasVersionId) WalkOctets(v, "versionId", m.versionId);
  }
};

struct GatekeeperInfo {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
  }
};

using TerminalInfo = GatekeeperInfo;

struct DataRate {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t channelRate;
  uint32_t hasChannelMultiplier;
  uint16_t channelMultiplier;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    v.Number("channelRate", m.channelRate);
    if (m.hasChannelMultiplier) v.Number("channelMultiplier", m.channelMultiplier);
  }
};

struct SupportedPrefix {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  AliasAddress prefix;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    v.Record("prefix", m.prefix);
  }
};

struct ProtocolCaps {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t hasDataRatesSupported;
  uint8_t dataRatesSupportedCount;
  DataRate* dataRatesSupported;
  uint32_t hasSupportedPrefixes;
  uint8_t supportedPrefixesCount;
  SupportedPrefix* supportedPrefixes;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasDataRatesSupported) v.List("dataRatesSupported", KELVRA_LIST(m.dataRatesSupported));
    if (m.hasSupportedPrefixes) v.List("supportedPrefixes", KELVRA_LIST(m.supportedPrefixes));
  }
};

using H310Caps = ProtocolCaps;

using H320Caps = ProtocolCaps;

using H321Caps = ProtocolCaps;

using H322Caps = ProtocolCaps;

using H323Caps = ProtocolCaps;

using H324Caps = ProtocolCaps;

using VoiceCaps = ProtocolCaps;

using T120OnlyCaps = ProtocolCaps;

struct NonStandardProtocol {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasDataRatesSupported;
  uint8_t dataRatesSupportedCount;
  DataRate* dataRatesSupported;
  uint8_t supportedPrefixesCount;
  SupportedPrefix* supportedPrefixes;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasDataRatesSupported) v.List("dataRatesSupported", KELVRA_LIST(m.dataRatesSupported));
    v.List("supportedPrefixes", KELVRA_LIST(m.supportedPrefixes));
  }
};

struct T38FaxAnnexbOnlyCaps {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasDataRatesSupported;
  uint8_t dataRatesSupportedCount;
  DataRate* dataRatesSupported;
  uint8_t supportedPrefixesCount;
  SupportedPrefix* supportedPrefixes;
  h245::DataProtocolCapability t38FaxProtocol;
  h245::T38FaxProfile t38FaxProfile;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasDataRatesSupported) v.List("dataRatesSupported", KELVRA_LIST(m.dataRatesSupported));
    v.List("supportedPrefixes", KELVRA_LIST(m.supportedPrefixes));
    v.Record("t38FaxProtocol", m.t38FaxProtocol);
    v.Record("t38FaxProfile", m.t38FaxProfile);
  }
};

struct SupportedProtocols {
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandardData;
    H310Caps h310;
    H320Caps h320;
    H321Caps h321;
    H322Caps h322;
    H323Caps h323;
    H324Caps h324;
    VoiceCaps voice;
    T120OnlyCaps t120Only;
    NonStandardProtocol nonStandardProtocol;
    T38FaxAnnexbOnlyCaps t38FaxAnnexbOnly;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("nonStandardProtocol", m.nonStandardProtocol);
        case 1: return v.Record("t38FaxAnnexbOnly", m.t38FaxAnnexbOnly);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandardData", m.nonStandardData);
      case 1: return v.Record("h310", m.h310);
      case 2: return v.Record("h320", m.h320);
      case 3: return v.Record("h321", m.h321);
      case 4: return v.Record("h322", m.h322);
      case 5: return v.Record("h323", m.h323);
      case 6: return v.Record("h324", m.h324);
      case 7: return v.Record("voice", m.voice);
      case 8: return v.Record("t120-only", m.t120Only);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct GatewayInfo {
  uint32_t hasProtocol;
  uint8_t protocolCount;
  SupportedProtocols* protocol;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasProtocol) v.List("protocol", KELVRA_LIST(m.protocol));
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
  }
};

struct McuInfo {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t hasProtocol;
  uint8_t protocolCount;
  SupportedProtocols* protocol;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasProtocol) v.List("protocol", KELVRA_LIST(m.protocol));
  }
};

struct TunnelledProtocolAlternateIdentifier {
  OctetStringValue protocolType;
  uint32_t hasProtocolVariant;
  OctetStringValue protocolVariant;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    WalkOctets(v, "protocolType", m.protocolType, OctetNotation::kCharacters);
    if (m.hasProtocolVariant) WalkOctets(v, "protocolVariant", m.protocolVariant, OctetNotation::kCharacters);
  }
};

struct TunnelledProtocol {
  struct Id {
    uint8_t choiceTag;
    union {
      ObjectIdentifierValue tunnelledProtocolObjectID;
      TunnelledProtocolAlternateIdentifier tunnelledProtocolAlternateID;
    };
    uint32_t isExtension;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.ObjectIdentifier("tunnelledProtocolObjectID", m.tunnelledProtocolObjectID);
        case 1: return v.Record("tunnelledProtocolAlternateID", m.tunnelledProtocolAlternateID);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  Id id;
  uint32_t hasSubIdentifier;
  OctetStringValue subIdentifier;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("id", m.id);
    if (m.hasSubIdentifier) WalkOctets(v, "subIdentifier", m.subIdentifier, OctetNotation::kCharacters);
  }
};

struct EndpointType {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t hasVendor;
  VendorIdentifier vendor;
  uint32_t hasGatekeeper;
  GatekeeperInfo gatekeeper;
  uint32_t hasGateway;
  GatewayInfo gateway;
  uint32_t hasMcu;
  McuInfo mcu;
  uint32_t hasTerminal;
  TerminalInfo terminal;
  uint32_t mc;
  uint32_t undefinedNode;
  uint32_t isExtended;
  uint32_t hasSet;
  OctetStringValue set;
  uint32_t hasSupportedTunnelledProtocols;
  uint8_t supportedTunnelledProtocolsCount;
  TunnelledProtocol* supportedTunnelledProtocols;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    if (m.hasVendor) v.Record("vendor", m.vendor);
    if (m.hasGatekeeper) v.Record("gatekeeper", m.gatekeeper);
    if (m.hasGateway) v.Record("gateway", m.gateway);
    if (m.hasMcu) v.Record("mcu", m.mcu);
    if (m.hasTerminal) v.Record("terminal", m.terminal);
    v.Boolean("mc", m.mc);
    v.Boolean("undefinedNode", m.undefinedNode);
    if (m.hasSet) WalkOctets(v, "set", m.set, OctetNotation::kFixedBits);
    if (m.hasSupportedTunnelledProtocols)
      v.List("supportedTunnelledProtocols", KELVRA_LIST(m.supportedTunnelledProtocols));
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
