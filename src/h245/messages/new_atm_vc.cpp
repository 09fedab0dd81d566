#include "h245/decode.h"
#include "h245/messages/new_atm_vc_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeAal1(ATMAdaptationLayer::Aal1& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.clockRecovery, r);
  DecodeNullChoice(m.errorCorrection, r);
  PerFlags flags = PerReadFlags(r, 2);
  m.structuredDataTransfer = flags.Next();
  m.partiallyFilledCells = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeAal5(ATMAdaptationLayer::Aal5& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.forwardMaximumSDUSize = PerReadNumber<uint16_t>(r, 0, 65535);
  m.backwardMaximumSDUSize = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeATMAdaptationLayer(ATMAdaptationLayer& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeAal1(m.aal1, r);
    case 1: return DecodeAal5(m.aal5, r);
    default: return;
  }
}

void DecodeATMReverseParameters(ATMReverseParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.bitRate = PerReadNumber<uint16_t>(r, 1, 65535);
  PerFlags flags = PerReadFlags(r, 2);
  m.bitRateLockedToPCRClock = flags.Next();
  m.bitRateLockedToNetworkClock = flags.Next();
  DecodeNullChoice(m.multiplex, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

// The components that the command and the indication begin with.
template <class NewATMVC>
void DecodeForwardParameters(NewATMVC& m, PerReader& r) {
  m.resourceID = PerReadNumber<uint16_t>(r, 0, 65535);
  m.bitRate = PerReadNumber<uint16_t>(r, 1, 65535);
  PerFlags flags = PerReadFlags(r, 2);
  m.bitRateLockedToPCRClock = flags.Next();
  m.bitRateLockedToNetworkClock = flags.Next();
  DecodeATMAdaptationLayer(m.aal, r);
  DecodeNullChoice(m.multiplex, r);
}

}  // namespace

void DecodeNewATMVCCommand(NewATMVCCommand& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeForwardParameters(m, r);
  DecodeATMReverseParameters(m.reverseParameters, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeNewATMVCIndication(NewATMVCIndication& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeForwardParameters(m, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasReverseParameters = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasReverseParameters) DecodeOpen(m.reverseParameters, r, DecodeATMReverseParameters);
  PerSkipOpenTypes(r, unknown);
}

}  // namespace kelvra::h245
