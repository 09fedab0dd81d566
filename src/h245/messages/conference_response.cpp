#include "h245/channels/h2250_parameters_decode.h"
#include "h245/decode.h"
#include "h245/messages/conference_response_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeTerminalInformation(TerminalInformation& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeTerminalLabel(m.terminalLabel, r);
  PerReadSizedOctets(m.terminalID, r, 1, 128);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRequestAllTerminalIDsResponse(RequestAllTerminalIDsResponse& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.terminalInformation), r, DecodeTerminalInformation));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRemoteMCResponse(RemoteMCResponse& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 1: return DecodeNullChoice(m.reject, r);
    default: return;
  }
}

void DecodeConferenceIDResponse(ConferenceResponse::ConferenceIDResponse& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeTerminalLabel(m.terminalLabel, r);
  PerReadSizedOctets(m.conferenceID, r, 1, 32);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodePasswordResponse(ConferenceResponse::PasswordResponse& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeTerminalLabel(m.terminalLabel, r);
  PerReadSizedOctets(m.password, r, 1, 32);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeExtensionAddressResponse(ConferenceResponse::ExtensionAddressResponse& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  PerReadSizedOctets(m.extensionAddress, r, 1, 128);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeTerminalCertificateResponse(ConferenceResponse::TerminalCertificateResponse& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasTerminalLabel = flags.Next();
  m.hasCertificateResponse = flags.Next();
  if (m.hasTerminalLabel) DecodeTerminalLabel(m.terminalLabel, r);
  if (m.hasCertificateResponse) PerReadSizedOctets(m.certificateResponse, r, 1, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeConferenceResponse(ConferenceResponse& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 8);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.extensionAddressResponse, r, DecodeExtensionAddressResponse);
      case 1: return DecodeOpen(m.chairTokenOwnerResponse, r, DecodeTerminalInformation);
      case 2: return DecodeOpen(m.terminalCertificateResponse, r, DecodeTerminalCertificateResponse);
      case 3: return DecodeOpen(m.broadcastMyLogicalChannelResponse, r, DecodeNullChoice);
      case 4: return DecodeOpen(m.makeTerminalBroadcasterResponse, r, DecodeNullChoice);
      case 5: return DecodeOpen(m.sendThisSourceResponse, r, DecodeNullChoice);
      case 6: return DecodeOpen(m.requestAllTerminalIDsResponse, r, DecodeRequestAllTerminalIDsResponse);
      case 7: return DecodeOpen(m.remoteMCResponse, r, DecodeRemoteMCResponse);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeTerminalInformation(m.mCTerminalIDResponse, r);
    case 1: return DecodeTerminalInformation(m.terminalIDResponse, r);
    case 2: return DecodeConferenceIDResponse(m.conferenceIDResponse, r);
    case 3: return DecodePasswordResponse(m.passwordResponse, r);
    case 4:
      KELVRA_OR_STOP(DecodeSizedSequenceOf(ListOf(m.terminalListResponse), r, 1, 256, DecodeTerminalLabel));
      return;
    case 7: return DecodeNullChoice(m.makeMeChairResponse, r);
    default: return;
  }
}

}  // namespace kelvra::h245
