// Transport and alias addresses.
#pragma once

#include "identifiers.h"
#include "non_standard.h"

#include "../../begin_descriptions.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct TransportAddress {
  struct IpAddress {
    OctetStringValue ip;
    uint16_t port;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(ip, OctetString(4));
      KELVRA_MEMBER(port, Integer(0, 65535));
    KELVRA_END
  };

  struct IpSourceRoute {
    struct RoutingNames {
      enum Alternative : uint32_t;
      static constexpr bool kIsReadAtTheEnd = true;
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

    KELVRA_SEQUENCE
      KELVRA_MEMBER(ip, OctetString(4));
      KELVRA_MEMBER(port, Integer(0, 65535));
      KELVRA_MEMBER_LIST(route, SequenceOf(EvenIfMissing(OctetString(4))));
      KELVRA_MEMBER(routing, InlineType());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct IpxAddress {
    OctetStringValue node;
    OctetStringValue netnum;
    OctetStringValue port;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(node, OctetString(6));
      KELVRA_MEMBER(netnum, OctetString(4));
      KELVRA_MEMBER(port, OctetString(2));
    KELVRA_END
  };

  struct Ip6Address {
    OctetStringValue ip;
    uint16_t port;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(ip, OctetString(16));
      KELVRA_MEMBER(port, Integer(0, 65535));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(ipAddress, InlineType());
    KELVRA_ALTERNATIVE(ipSourceRoute, InlineType());
    KELVRA_ALTERNATIVE(ipxAddress, InlineType());
    KELVRA_ALTERNATIVE(ip6Address, InlineType());
    KELVRA_ALTERNATIVE(netBios, OctetString(16));
    KELVRA_ALTERNATIVE(nsap, OctetString(1, 20));
    KELVRA_ALTERNATIVE(nonStandardAddress, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END

  // Whether the tag is the index of an extension alternative of `routing`, which the decoder stores there. Only
  // ipSourceRoute leaves these values in these members.
  bool HasTagOfRouting() const {
    return isExtension == 0 && ipSourceRoute.ip.length == 4 && ipSourceRoute.routing.choiceTag == 0 &&
           ipSourceRoute.routing.empty == 0 && ipSourceRoute.routing.isExtension == 1 &&
           (ipSourceRoute.routeCount != 0 || Slot<OctetStringValue>(&ipSourceRoute.route).Get() == nullptr);
  }
};

KELVRA_NULL_CHOICE(NullChoice, PublicTypeOfNumber, 6, "unknown", "internationalNumber", "nationalNumber",
                   "networkSpecificNumber", "subscriberNumber", "abbreviatedNumber");
KELVRA_NULL_CHOICE(NullChoice, PrivateTypeOfNumber, 6, "unknown", "level2RegionalNumber", "level1RegionalNumber",
                   "pISNSpecificNumber", "localNumber", "abbreviatedNumber");

struct PublicPartyNumber {
  PublicTypeOfNumber publicTypeOfNumber;
  OctetStringValue publicNumberDigits;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(publicTypeOfNumber, DefinedType());
    KELVRA_MEMBER(publicNumberDigits, NumberDigits(1, 128));
  KELVRA_END
};

struct PrivatePartyNumber {
  PrivateTypeOfNumber privateTypeOfNumber;
  OctetStringValue privateNumberDigits;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(privateTypeOfNumber, DefinedType());
    KELVRA_MEMBER(privateNumberDigits, NumberDigits(1, 128));
  KELVRA_END
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

  static constexpr bool kExtensionIndexIsNotKept = true;
  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(e164Number, DefinedType());
    KELVRA_ALTERNATIVE(dataPartyNumber, NumberDigits(1, 128));
    KELVRA_ALTERNATIVE(telexPartyNumber, NumberDigits(1, 128));
    KELVRA_ALTERNATIVE(privateNumber, DefinedType());
    KELVRA_ALTERNATIVE(nationalStandardPartyNumber, NumberDigits(1, 128));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct ANSI41UIM {
  struct SystemId {
    uint8_t choiceTag;
    union {
      OctetStringValue sid;
      OctetStringValue mid;
    };
    uint32_t isExtension;

    static constexpr bool kExtensionIndexIsNotKept = true;
    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(sid, TBCDString(1, 4));
      KELVRA_ALTERNATIVE(mid, TBCDString(1, 4));
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasImsi, imsi, TBCDString(3, 16));
    KELVRA_OPTIONAL(hasMin, min, TBCDString(3, 16));
    KELVRA_OPTIONAL(hasMdn, mdn, TBCDString(3, 16));
    KELVRA_OPTIONAL(hasMsisdn, msisdn, TBCDString(3, 16));
    KELVRA_OPTIONAL(hasEsn, esn, TBCDString(16));
    KELVRA_OPTIONAL(hasMscid, mscid, TBCDString(3, 16));
    KELVRA_MEMBER(systemId, Named("system-id", InlineType()));
    KELVRA_OPTIONAL(hasSystemMyTypeCode, systemMyTypeCode, OctetString(1));
    KELVRA_OPTIONAL(hasSystemAccessType, systemAccessType, OctetString(1));
    KELVRA_OPTIONAL(hasQualificationInformationCode, qualificationInformationCode, OctetString(1));
    KELVRA_OPTIONAL(hasSesn, sesn, TBCDString(16));
    KELVRA_OPTIONAL(hasSoc, soc, TBCDString(3, 16));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasImsi, imsi, TBCDString(3, 16));
    // An OCTET STRING in the ASN.1, but read as digits like the others.
    KELVRA_OPTIONAL(hasTmsi, tmsi, TBCDString(1, 4));
    KELVRA_OPTIONAL(hasMsisdn, msisdn, TBCDString(3, 16));
    KELVRA_OPTIONAL(hasImei, imei, TBCDString(15, 16));
    KELVRA_OPTIONAL(hasHplmn, hplmn, TBCDString(1, 4));
    KELVRA_OPTIONAL(hasVplmn, vplmn, TBCDString(1, 4));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MobileUIM {
  uint8_t choiceTag;
  union {
    ANSI41UIM ansi41Uim;
    GSMUIM gsmUim;
  };
  uint32_t isExtension;

  static constexpr bool kExtensionIndexIsNotKept = true;
  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(ansi41Uim, Named("ansi-41-uim", DefinedType()));
    KELVRA_ALTERNATIVE(gsmUim, Named("gsm-uim", DefinedType()));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(dialedDigits, NumberDigits(1, 128));
    KELVRA_ALTERNATIVE(h323ID, Named("h323-ID", BMPString(1, 256)));
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(urlID, Named("url-ID", CheckedIA5String(1, 512)));
    KELVRA_ALTERNATIVE(transportID, DefinedType());
    KELVRA_ALTERNATIVE(emailID, Named("email-ID", CheckedIA5String(1, 512)));
    KELVRA_ALTERNATIVE(partyNumber, DefinedType());
    KELVRA_ALTERNATIVE(mobileUIM, DefinedType());
  KELVRA_END
};

struct ExtendedAliasAddress {
  AliasAddress address;
  uint32_t hasPresentationIndicator;
  PresentationIndicator presentationIndicator;
  uint32_t hasScreeningIndicator;
  ScreeningIndicator screeningIndicator;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(address, DefinedType());
    KELVRA_OPTIONAL(hasPresentationIndicator, presentationIndicator, DefinedType());
    KELVRA_OPTIONAL(hasScreeningIndicator, screeningIndicator, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

#pragma pack(pop)

// Walks an ipSourceRoute whose `routing` is extension alternative `index`.
struct RouteOfUnknownRouting {
  struct Routing {
    uint8_t index;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.UnknownExtension(m.index);
    }
  };
  template <class Visitor>
  struct RouteWalk : asn1::SequenceWalk<Visitor> {
    Visitor& visitor;
    Routing routing;
    RouteWalk(Visitor& shown, uint8_t index) : asn1::SequenceWalk<Visitor>(shown), visitor(shown), routing{index} {}

    using asn1::SequenceWalk<Visitor>::Member;
    bool Member(const char* name, TransportAddress::IpSourceRoute::Routing&, asn1::InlineTypeKind) {
      visitor.Record(name, routing);
      return true;
    }
  };

  TransportAddress::IpSourceRoute* route;
  uint8_t index;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    RouteWalk<Visitor> walk(v, m.index);
    static_cast<void>(TransportAddress::IpSourceRoute::Describe(*m.route, walk));
  }
};

template <class Visitor>
void WalkRecord(TransportAddress& m, Visitor& v) {
  if (!m.HasTagOfRouting()) return ::kelvra::WalkRecord<TransportAddress>(m, v);
  RouteOfUnknownRouting route{&m.ipSourceRoute, m.choiceTag};
  v.Record("ipSourceRoute", route);
}

}  // namespace kelvra::h225

#include "../../end_descriptions.h"
