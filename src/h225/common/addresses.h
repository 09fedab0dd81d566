// Transport and alias addresses.
#pragma once

#include <stdint.h>

#include "identifiers.h"
#include "non_standard.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct TransportAddress {
  struct IpAddress {
    OctetStringValue ip;
    uint16_t port;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      WalkOctets(v, "ip", m.ip);
      v.Number("port", m.port);
    }
  };

  struct IpSourceRoute {
    struct RoutingNames {
      static constexpr uint32_t kRoots = 2;
      static constexpr const char* kAlternatives[] = {"strict", "loose"};
    };
    using Routing = NullChoice<RoutingNames>;

    OctetStringValue ip;
    uint16_t port;
    uint8_t routeCount;
    OctetStringValue* route;
    Routing routing;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      WalkWith(m, m.routing, v);
    }
    template <class Record, class RoutingRecord, class Visitor>
    static void WalkWith(Record& m, RoutingRecord& routing, Visitor& v) {
      WalkOctets(v, "ip", m.ip);
      v.Number("port", m.port);
      v.OctetStrings("route", KELVRA_LIST(m.route), OctetNotation::kOctets);
      v.Record("routing", routing);
    }
  };

  // How a walk tells a route whose `routing` is an extension alternative: its index stands in the tag of
  // the whole address.
  template <class Route>
  struct UntaggedRoute {
    struct Routing {
      uint8_t index;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        v.UnknownExtension(m.index);
      }
    };

    Route& route;
    Routing routing;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      IpSourceRoute::WalkWith(m.route, m.routing, v);
    }
  };

  struct IpxAddress {
    OctetStringValue node;
    OctetStringValue netnum;
    OctetStringValue port;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      WalkOctets(v, "node", m.node);
      WalkOctets(v, "netnum", m.netnum);
      WalkOctets(v, "port", m.port);
    }
  };

  struct Ip6Address {
    OctetStringValue ip;
    uint16_t port;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      WalkOctets(v, "ip", m.ip);
      v.Number("port", m.port);
    }
  };

  uint8_t choiceTag;
  union {
    IpAddress ipAddress;
    IpSourceRoute ipSourceRoute;
    IpxAddress ipxAddress;
    Ip6Address ip6Address;
    OctetStringValue netBios;
    OctetStringValue nsap;
    NonStandardParameter nonStandardAddress;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    // A route whose `routing` is an extension alternative has lost the tag to it. No other alternative
    // leaves these values in their places.
    const auto& route = m.ipSourceRoute;
    if (route.ip.length == 4 && route.routing.choiceTag == 0 && route.routing.empty == 0 &&
        route.routing.isExtension == 1 && (route.routeCount != 0 || KELVRA_SLOT(route.route).Get() == nullptr)) {
      UntaggedRoute<decltype(m.ipSourceRoute)> untagged{m.ipSourceRoute, {m.choiceTag}};
      return v.Record("ipSourceRoute", untagged);
    }
    switch (m.choiceTag) {
      case 0: return v.Record("ipAddress", m.ipAddress);
      case 1: return v.Record("ipSourceRoute", m.ipSourceRoute);
      case 2: return v.Record("ipxAddress", m.ipxAddress);
      case 3: return v.Record("ip6Address", m.ip6Address);
      case 4: return WalkOctets(v, "netBios", m.netBios);
      case 5: return WalkOctets(v, "nsap", m.nsap);
      case 6: return v.Record("nonStandardAddress", m.nonStandardAddress);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct PublicTypeOfNumberNames {
  static constexpr uint32_t kRoots = 6;
  static constexpr const char* kAlternatives[] = {"unknown",          "internationalNumber",
                                                  "nationalNumber",   "networkSpecificNumber",
                                                  "subscriberNumber", "abbreviatedNumber"};
};
using PublicTypeOfNumber = NullChoice<PublicTypeOfNumberNames>;

struct PrivateTypeOfNumberNames {
  static constexpr uint32_t kRoots = 6;
  static constexpr const char* kAlternatives[] = {
      "unknown",     "level2RegionalNumber", "level1RegionalNumber", "pISNSpecificNumber",
      "localNumber", "abbreviatedNumber"};
};
using PrivateTypeOfNumber = NullChoice<PrivateTypeOfNumberNames>;

struct PublicPartyNumber {
  PublicTypeOfNumber publicTypeOfNumber;
  OctetStringValue publicNumberDigits;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("publicTypeOfNumber", m.publicTypeOfNumber);
    WalkOctets(v, "publicNumberDigits", m.publicNumberDigits, OctetNotation::kDigits);
  }
};

struct PrivatePartyNumber {
  PrivateTypeOfNumber privateTypeOfNumber;
  OctetStringValue privateNumberDigits;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("privateTypeOfNumber", m.privateTypeOfNumber);
    WalkOctets(v, "privateNumberDigits", m.privateNumberDigits, OctetNotation::kDigits);
  }
};

struct PartyNumber {
  uint8_t choiceTag;
  union {
    PublicPartyNumber e164Number;
    OctetStringValue dataPartyNumber;
    OctetStringValue telexPartyNumber;
    PrivatePartyNumber privateNumber;
    OctetStringValue nationalStandardPartyNumber;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("e164Number", m.e164Number);
      case 1: return WalkOctets(v, "dataPartyNumber", m.dataPartyNumber, OctetNotation::kDigits);
      case 2: return WalkOctets(v, "telexPartyNumber", m.telexPartyNumber, OctetNotation::kDigits);
      case 3: return v.Record("privateNumber", m.privateNumber);
      case 4:
        return WalkOctets(v, "nationalStandardPartyNumber", m.nationalStandardPartyNumber, OctetNotation::kDigits);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct ANSI41UIM {
  struct SystemId {
    uint8_t choiceTag;
    union {
      OctetStringValue sid;
      OctetStringValue mid;
    };
    uint32_t isExtension;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return WalkOctets(v, "sid", m.sid, OctetNotation::kCharacters);
        case 1: return WalkOctets(v, "mid", m.mid, OctetNotation::kCharacters);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  uint32_t hasImsi;
  OctetStringValue imsi;
  uint32_t hasMin;
  OctetStringValue min;
  uint32_t hasMdn;
  OctetStringValue mdn;
  uint32_t hasMsisdn;
  OctetStringValue msisdn;
  uint32_t hasEsn;
  OctetStringValue esn;
  uint32_t hasMscid;
  OctetStringValue mscid;
  SystemId systemId;
  uint32_t hasSystemMyTypeCode;
  OctetStringValue systemMyTypeCode;
  uint32_t hasSystemAccessType;
  OctetStringValue systemAccessType;
  uint32_t hasQualificationInformationCode;
  OctetStringValue qualificationInformationCode;
  uint32_t hasSesn;
  OctetStringValue sesn;
  uint32_t hasSoc;
  OctetStringValue soc;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasImsi) WalkOctets(v, "imsi", m.imsi, OctetNotation::kCharacters);
    if (m.hasMin) WalkOctets(v, "min", m.min, OctetNotation::kCharacters);
    if (m.hasMdn) WalkOctets(v, "mdn", m.mdn, OctetNotation::kCharacters);
    if (m.hasMsisdn) WalkOctets(v, "msisdn", m.msisdn, OctetNotation::kCharacters);
    if (m.hasEsn) WalkOctets(v, "esn", m.esn, OctetNotation::kCharacters);
    if (m.hasMscid) WalkOctets(v, "mscid", m.mscid, OctetNotation::kCharacters);
    v.Record("system-id", m.systemId);
    if (m.hasSystemMyTypeCode) WalkOctets(v, "systemMyTypeCode", m.systemMyTypeCode);
    if (m.hasSystemAccessType) WalkOctets(v, "systemAccessType", m.systemAccessType);
    if (m.hasQualificationInformationCode)
      WalkOctets(v, "qualificationInformationCode", m.qualificationInformationCode);
    if (m.hasSesn) WalkOctets(v, "sesn", m.sesn, OctetNotation::kCharacters);
    if (m.hasSoc) WalkOctets(v, "soc", m.soc, OctetNotation::kCharacters);
  }
};

struct GSMUIM {
  uint32_t hasImsi;
  OctetStringValue imsi;
  uint32_t hasTmsi;
  OctetStringValue tmsi;
  uint32_t hasMsisdn;
  OctetStringValue msisdn;
  uint32_t hasImei;
  OctetStringValue imei;
  uint32_t hasHplmn;
  OctetStringValue hplmn;
  uint32_t hasVplmn;
  OctetStringValue vplmn;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasImsi) WalkOctets(v, "imsi", m.imsi, OctetNotation::kCharacters);
    if (m.hasTmsi) WalkOctets(v, "tmsi", m.tmsi, OctetNotation::kCharacters);
    if (m.hasMsisdn) WalkOctets(v, "msisdn", m.msisdn, OctetNotation::kCharacters);
    if (m.hasImei) WalkOctets(v, "imei", m.imei, OctetNotation::kCharacters);
    if (m.hasHplmn) WalkOctets(v, "hplmn", m.hplmn, OctetNotation::kCharacters);
    if (m.hasVplmn) WalkOctets(v, "vplmn", m.vplmn, OctetNotation::kCharacters);
  }
};

struct MobileUIM {
  uint8_t choiceTag;
  union {
    ANSI41UIM ansi41Uim;
    GSMUIM gsmUim;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("ansi-41-uim", m.ansi41Uim);
      case 1: return v.Record("gsm-uim", m.gsmUim);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct AliasAddress {
  uint8_t choiceTag;
  union {
    OctetStringValue dialedDigits;
    BMPStringValue h323ID;
    OctetStringValue urlID;
    TransportAddress transportID;
    OctetStringValue emailID;
    PartyNumber partyNumber;
    MobileUIM mobileUIM;
  };
  uint32_t isExtension;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return WalkOctets(v, "url-ID", m.urlID, OctetNotation::kCharacters);
        case 1: return v.Record("transportID", m.transportID);
        case 2: return WalkOctets(v, "email-ID", m.emailID, OctetNotation::kCharacters);
        case 3: return v.Record("partyNumber", m.partyNumber);
        case 4: return v.Record("mobileUIM", m.mobileUIM);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return WalkOctets(v, "dialedDigits", m.dialedDigits, OctetNotation::kDigits);
      case 1: return v.Characters16("h323-ID", m.h323ID);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct ExtendedAliasAddress {
  AliasAddress address;
  uint32_t hasPresentationIndicator;
  PresentationIndicator presentationIndicator;
  uint32_t hasScreeningIndicator;
  ScreeningIndicator screeningIndicator;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("address", m.address);
    if (m.hasPresentationIndicator) v.Record("presentationIndicator", m.presentationIndicator);
    if (m.hasScreeningIndicator) v.Record("screeningIndicator", m.screeningIndicator);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
