#include "h245/capabilities/audio_capability_decode.h"
#include "h245/capabilities/capability_decode.h"
#include "h245/capabilities/conference_capability_decode.h"
#include "h245/capabilities/data_application_decode.h"
#include "h245/capabilities/encryption_decode.h"
#include "h245/capabilities/stream_capability_decode.h"
#include "h245/capabilities/video_capability_decode.h"
#include "h245/common/generic_capability_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeH233EncryptionReceiveCapability(Capability::H233EncryptionReceiveCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.h233IVResponseTime = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeCapability(Capability& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 12);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.conferenceCapability, r, DecodeConferenceCapability);
      case 1: return DecodeOpen(m.h235SecurityCapability, r, DecodeH235SecurityCapability);
      case 2: m.maxPendingReplacementFor = PerReadOpenNumber<uint8_t>(r, 0, 255); return;
      case 3: return DecodeOpen(m.receiveUserInputCapability, r, DecodeUserInputCapability);
      case 4: return DecodeOpen(m.transmitUserInputCapability, r, DecodeUserInputCapability);
      case 5: return DecodeOpen(m.receiveAndTransmitUserInputCapability, r, DecodeUserInputCapability);
      case 6: return DecodeOpen(m.genericControlCapability, r, DecodeGenericCapability);
      case 7: return DecodeOpen(m.receiveMultiplexedStreamCapability, r, DecodeMultiplexedStreamCapability);
      case 8: return DecodeOpen(m.transmitMultiplexedStreamCapability, r, DecodeMultiplexedStreamCapability);
      case 9: return DecodeOpen(m.receiveAndTransmitMultiplexedStreamCapability, r, DecodeMultiplexedStreamCapability);
      case 10: return DecodeOpen(m.receiveRTPAudioTelephonyEventCapability, r, DecodeAudioTelephonyEventCapability);
      case 11: return DecodeOpen(m.receiveRTPAudioToneCapability, r, DecodeAudioToneCapability);
      case 12: return DecodeOpen(m.fecCapability, r, DecodeFECCapability);
      case 13: return DecodeOpen(m.multiplePayloadStreamCapability, r, DecodeMultiplePayloadStreamCapability);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeVideoCapability(m.receiveVideoCapability, r);
    case 2: return DecodeVideoCapability(m.transmitVideoCapability, r);
    case 3: return DecodeVideoCapability(m.receiveAndTransmitVideoCapability, r);
    case 4: return DecodeAudioCapability(m.receiveAudioCapability, r);
    case 5: return DecodeAudioCapability(m.transmitAudioCapability, r);
    case 6: return DecodeAudioCapability(m.receiveAndTransmitAudioCapability, r);
    case 7: return DecodeDataApplicationCapability(m.receiveDataApplicationCapability, r);
    case 8: return DecodeDataApplicationCapability(m.transmitDataApplicationCapability, r);
    case 9: return DecodeDataApplicationCapability(m.receiveAndTransmitDataApplicationCapability, r);
    case 10: m.h233EncryptionTransmitCapability = PerReadBit(r); return;
    case 11: return DecodeH233EncryptionReceiveCapability(m.h233EncryptionReceiveCapability, r);
    default: return;
  }
}

}  // namespace kelvra::h245
