#include "h245/capabilities/data_application_decode.h"
#include "h245/capabilities/data_protocol_decode.h"
#include "h245/common/generic_capability_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeT84(DataApplicationCapability::Application::T84& m, PerReader& r) {
  DecodeDataProtocolCapability(m.t84Protocol, r);
  DecodeT84Profile(m.t84Profile, r);
}

void DecodeApplication(DataApplicationCapability::Application& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 10);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.t30fax, r, DecodeDataProtocolCapability);
      case 1: return DecodeOpen(m.t140, r, DecodeDataProtocolCapability);
      case 2: return DecodeOpen(m.t38fax, r, DecodeT38fax);
      case 3: return DecodeOpen(m.genericDataCapability, r, DecodeGenericCapability);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeDataProtocolCapability(m.t120, r);
    case 2: return DecodeDataProtocolCapability(m.dsmCc, r);
    case 3: return DecodeDataProtocolCapability(m.userData, r);
    case 4: return DecodeT84(m.t84, r);
    case 5: return DecodeDataProtocolCapability(m.t434, r);
    case 6: return DecodeDataProtocolCapability(m.h224, r);
    case 7: return DecodeNlpid(m.nlpid, r);
    case 9: return DecodeDataProtocolCapability(m.h222DataPartitioning, r);
    default: return;
  }
}

}  // namespace

void DecodeNlpid(DataApplicationCapability::Application::Nlpid& m, PerReader& r) {
  DecodeDataProtocolCapability(m.nlpidProtocol, r);
  PerReadAnnouncedOctetString(m.nlpidData, r);
}

void DecodeT38fax(DataApplicationCapability::Application::T38fax& m, PerReader& r) {
  DecodeDataProtocolCapability(m.t38FaxProtocol, r);
  DecodeT38FaxProfile(m.t38FaxProfile, r);
}

void DecodeDataApplicationCapability(DataApplicationCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeApplication(m.application, r);
  m.maxBitRate = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
