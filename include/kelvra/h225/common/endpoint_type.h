// The type of an endpoint, its vendor, and the protocols it supports.
#pragma once

#include "../../h245/capabilities/data_protocol.h"
#include "addresses.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct VendorIdentifier {
  H221NonStandard vendor;
  uint32_t hasProductId;
  OctetStringValue productId;
  uint32_t hasVersionId;
  OctetStringValue versionId;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(vendor, DefinedType());
    KELVRA_OPTIONAL(hasProductId, productId, OctetString(1, 256));
    KELVRA_OPTIONAL(hasVersionId, versionId, OctetString(1, 256));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct GatekeeperInfo {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

using TerminalInfo = GatekeeperInfo;

struct DataRate {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t channelRate;
  uint32_t hasChannelMultiplier;
  uint16_t channelMultiplier;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_MEMBER(channelRate, Integer(0, kUnsigned32Maximum));
    KELVRA_OPTIONAL(hasChannelMultiplier, channelMultiplier, Integer(1, 256));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct SupportedPrefix {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  AliasAddress prefix;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_MEMBER(prefix, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasDataRatesSupported, dataRatesSupported, SequenceOf(DefinedType()));
    KELVRA_ADDITION_LIST(hasSupportedPrefixes, supportedPrefixes, SequenceOf(DefinedType()));
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL_LIST(hasDataRatesSupported, dataRatesSupported, SequenceOf(DefinedType()));
    KELVRA_MEMBER_LIST(supportedPrefixes, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL_LIST(hasDataRatesSupported, dataRatesSupported, SequenceOf(DefinedType()));
    KELVRA_MEMBER_LIST(supportedPrefixes, SequenceOf(DefinedType()));
    // H.245 types. Here they fail if nothing is left on entry, and the CHOICE fails on an index past its alternatives.
    KELVRA_MEMBER(t38FaxProtocol, DefinedType());
    KELVRA_MEMBER(t38FaxProfile, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandardData, DefinedType());
    KELVRA_ALTERNATIVE(h310, DefinedType());
    KELVRA_ALTERNATIVE(h320, DefinedType());
    KELVRA_ALTERNATIVE(h321, DefinedType());
    KELVRA_ALTERNATIVE(h322, DefinedType());
    KELVRA_ALTERNATIVE(h323, DefinedType());
    KELVRA_ALTERNATIVE(h324, DefinedType());
    KELVRA_ALTERNATIVE(voice, DefinedType());
    KELVRA_ALTERNATIVE(t120Only, Named("t120-only", DefinedType()));
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(nonStandardProtocol, DefinedType());
    KELVRA_ALTERNATIVE(t38FaxAnnexbOnly, DefinedType());
  KELVRA_END
};

struct GatewayInfo {
  uint32_t hasProtocol;
  uint8_t protocolCount;
  SupportedProtocols* protocol;
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL_LIST(hasProtocol, protocol, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct McuInfo {
  uint32_t hasNonStandardData;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t hasProtocol;
  uint8_t protocolCount;
  SupportedProtocols* protocol;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(hasProtocol, protocol, SequenceOf(DefinedType()));
  KELVRA_END
};

struct TunnelledProtocolAlternateIdentifier {
  OctetStringValue protocolType;
  uint32_t hasProtocolVariant;
  OctetStringValue protocolVariant;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(protocolType, IA5String(1, 64));
    KELVRA_OPTIONAL(hasProtocolVariant, protocolVariant, IA5String(1, 64));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct TunnelledProtocol {
  struct Id {
    uint8_t choiceTag;
    union {
      ObjectIdentifierValue tunnelledProtocolObjectID;
      TunnelledProtocolAlternateIdentifier tunnelledProtocolAlternateID;
    };
    uint32_t isExtension;

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(tunnelledProtocolObjectID, ObjectIdentifier());
      KELVRA_ALTERNATIVE(tunnelledProtocolAlternateID, DefinedType());
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  Id id;
  uint32_t hasSubIdentifier;
  OctetStringValue subIdentifier;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(id, InlineType());
    KELVRA_OPTIONAL(hasSubIdentifier, subIdentifier, IA5String(1, 64));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
    KELVRA_OPTIONAL(hasVendor, vendor, DefinedType());
    KELVRA_OPTIONAL(hasGatekeeper, gatekeeper, DefinedType());
    KELVRA_OPTIONAL(hasGateway, gateway, DefinedType());
    KELVRA_OPTIONAL(hasMcu, mcu, DefinedType());
    KELVRA_OPTIONAL(hasTerminal, terminal, DefinedType());
    KELVRA_MEMBER(mc, Boolean());
    KELVRA_MEMBER(undefinedNode, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasSet, set, BitString(32));
    KELVRA_ADDITION_LIST(hasSupportedTunnelledProtocols, supportedTunnelledProtocols, SequenceOf(DefinedType()));
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
