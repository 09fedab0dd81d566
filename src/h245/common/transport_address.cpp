#include "h245/common/non_standard_decode.h"
#include "h245/common/transport_address_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeIPAddress(MulticastAddress::IPAddress& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  PerReadOctets(m.network, r, 4);
  m.tsapIdentifier = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeIPAddress(UnicastAddress::IPAddress& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.networkLength = 4;
  m.network = PerReadOctets(r, 4);
  m.tsapIdentifier = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeIPXAddress(UnicastAddress::IPXAddress& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.node.data = PerReadOctets(r, 6);
  m.netnum.data = PerReadOctets(r, 4);
  m.tsapIdentifier.data = PerReadOctets(r, 2);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeIP6Address(MulticastAddress::IP6Address& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  PerReadOctets(m.network, r, 16);
  m.tsapIdentifier = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeIP6Address(UnicastAddress::IP6Address& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.network.data = PerReadOctets(r, 16);
  m.tsapIdentifier = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRouteEntry(OctetStringValue& m, PerReader& r) { m.data = PerReadOctets(r, 4); }

void DecodeIPSourceRouteAddress(UnicastAddress::IPSourceRouteAddress& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.routing.choiceTag = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, 2));
  m.network.data = PerReadOctets(r, 4);
  m.tsapIdentifier = PerReadNumber<uint16_t>(r, 0, 65535);
  KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.route), r, DecodeRouteEntry));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMulticastAddress(MulticastAddress& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.nsap, r, PerReadSizedOctetsElement<1, 20>);
      case 1: return DecodeOpen(m.nonStandardAddress, r, DecodeNonStandardParameter);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeIPAddress(m.iPAddress, r);
    case 1: return DecodeIP6Address(m.iP6Address, r);
    default: return;
  }
}

}  // namespace

void DecodeUnicastAddress(UnicastAddress& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 5);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.nsap, r, PerReadSizedOctetsElement<1, 20>);
      case 1: return DecodeOpen(m.nonStandardAddress, r, DecodeNonStandardParameter);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeIPAddress(m.iPAddress, r);
    case 1: return DecodeIPXAddress(m.iPXAddress, r);
    case 2: return DecodeIP6Address(m.iP6Address, r);
    case 3: m.netBios.data = PerReadOctets(r, 16); return;
    case 4: return DecodeIPSourceRouteAddress(m.iPSourceRouteAddress, r);
    default: return;
  }
}

// The index of an extension alternative is not kept.
void DecodeTransportAddress(TransportAddress& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) {
    m.choiceTag = 0;
    return PerSkipOpenTypes(r, 1);
  }
  if (index == 0) return DecodeUnicastAddress(m.unicastAddress, r);
  DecodeMulticastAddress(m.multicastAddress, r);
}

}  // namespace kelvra::h245
