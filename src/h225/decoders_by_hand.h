// What descriptions of H.225.0 records cannot express: their own kinds, and hand-written decoders. A comment at each
// record gives the reason.
#pragma once

#include "h225/common/protocol_version.h"
#include "kelvra/h225/common/addresses.h"
#include "kelvra/h225/common/protocol_identifier.h"
#include "per/decoder.h"

namespace kelvra::h225 {

template <class R>
Status DecodeKind(ObjectIdentifierValue& value, R& r, ProtocolIdentifierKind) {
  ReadProtocolIdentifier(value, r);
  return kDecoded;
}

template <class R>
Status DecodeKind(ObjectIdentifierValue& value, R& r, RegistrationProtocolIdentifierKind) {
  return ReadRegistrationProtocolIdentifier(value, r);
}

// A CHOICE, except that the index of an extension alternative of `routing` replaces the tag.
template <class R>
[[gnu::always_inline]] inline Status DecodeByHand(TransportAddress& m, R& r) {
  KELVRA_TRY(DecodeDescribed(m, r));
  TransportAddress::IpSourceRoute::Routing& routing = m.ipSourceRoute.routing;
  if (m.isExtension == 0 && m.choiceTag == 1 && routing.isExtension != 0) {
    m.choiceTag = routing.choiceTag;
    routing.choiceTag = 0;
  }
  return kDecoded;
}

template <class R>
[[gnu::always_inline]] inline Status DecodeByHand(ScreeningIndicator& m, R& r) {
  m.value = PerReadConstrainedWholeNumber(r, 3);
  return kDecoded;
}

}  // namespace kelvra::h225
