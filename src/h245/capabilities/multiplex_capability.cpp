#include "h245/capabilities/h2250_capability_decode.h"
#include "h245/capabilities/multiplex_capability_decode.h"
#include "h245/capabilities/multiplex_format_decode.h"
#include "h245/common/generic_capability_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeV75Capability(V75Capability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.audioHeader = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeV76Capability(V76Capability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 10);
  m.isExtended = flags.Next();
  m.suspendResumeCapabilitywAddress = flags.Next();
  m.suspendResumeCapabilitywoAddress = flags.Next();
  m.rejCapability = flags.Next();
  m.sREJCapability = flags.Next();
  m.mREJCapability = flags.Next();
  m.crc8bitCapability = flags.Next();
  m.crc16bitCapability = flags.Next();
  m.crc32bitCapability = flags.Next();
  m.uihCapability = flags.Next();
  m.numOfDLCS = PerReadNumber<uint16_t>(r, 2, 8191);
  flags = PerReadFlags(r, 2);
  m.twoOctetAddressFieldCapability = flags.Next();
  m.loopBackTestCapability = flags.Next();
  m.n401Capability = PerReadNumber<uint16_t>(r, 1, 4095);
  m.maxWindowSizeCapability = PerReadNumber<uint8_t>(r, 1, 127);
  DecodeV75Capability(m.v75Capability, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeMultiplexCapability(MultiplexCapability& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.h2250Capability, r, DecodeH2250Capability);
      case 1: return DecodeOpen(m.genericMultiplexCapability, r, DecodeGenericCapability);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeH222Capability(m.h222Capability, r);
    case 2: return DecodeH223Capability(m.h223Capability, r);
    case 3: return DecodeV76Capability(m.v76Capability, r);
    default: return;
  }
}

}  // namespace kelvra::h245
