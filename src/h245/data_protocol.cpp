#include "h245/data_protocol_decode.h"
#include "h245/decode.h"
#include "h245/non_standard_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeV76wCompression(DataProtocolCapability::V76wCompression& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeCompressionType(m.transmitCompression, r);
    case 1: return DecodeCompressionType(m.receiveCompression, r);
    case 2: return DecodeCompressionType(m.transmitAndReceiveCompression, r);
    default: return;
  }
}

void DecodeT84Restricted(T84Profile::T84Restricted& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.qcif = PerReadBit(r);
  m.cif = PerReadBit(r);
  m.ccir601Seq = PerReadBit(r);
  m.ccir601Prog = PerReadBit(r);
  m.hdtvSeq = PerReadBit(r);
  m.hdtvProg = PerReadBit(r);
  m.g3FacsMH200x100 = PerReadBit(r);
  m.g3FacsMH200x200 = PerReadBit(r);
  m.g4FacsMMR200x100 = PerReadBit(r);
  m.g4FacsMMR200x200 = PerReadBit(r);
  m.jbig200x200Seq = PerReadBit(r);
  m.jbig200x200Prog = PerReadBit(r);
  m.jbig300x300Seq = PerReadBit(r);
  m.jbig300x300Prog = PerReadBit(r);
  m.digPhotoLow = PerReadBit(r);
  m.digPhotoMedSeq = PerReadBit(r);
  m.digPhotoMedProg = PerReadBit(r);
  m.digPhotoHighSeq = PerReadBit(r);
  m.digPhotoHighProg = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeV42bis(V42bis& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.numberOfCodewords = PerReadNumber<uint32_t>(r, 1, 65536);
  m.maximumStringLength = PerReadNumber<uint16_t>(r, 1, 256);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeCompressionType(CompressionType& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 1);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeV42bis(m.v42bis, r);
    default: return;
  }
}

void DecodeDataProtocolCapability(DataProtocolCapability& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 7);
  if (m.isExtension) {
    switch (index) {
      case 4: return InOpenType(r, [&] { DecodeV76wCompression(m.v76wCompression, r); });
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    default: return;
  }
}

void DecodeT84Profile(T84Profile& m, PerReader& r) {
  const uint32_t index = ReadRootChoice(m, r, 2);
  switch (index) {
    case 1: return DecodeT84Restricted(m.t84Restricted, r);
    default: return;
  }
}

void DecodeT38FaxUdpOptions(T38FaxUdpOptions& m, PerReader& r) {
  m.hasT38FaxMaxBuffer = PerReadBit(r);
  m.hasT38FaxMaxDatagram = PerReadBit(r);
  if (m.hasT38FaxMaxBuffer) m.t38FaxMaxBuffer = PerReadInteger(r);
  if (m.hasT38FaxMaxDatagram) m.t38FaxMaxDatagram = PerReadInteger(r);
  DecodeNullChoice(m.t38FaxUdpEC, r);
}

void DecodeT38FaxTcpOptions(T38FaxTcpOptions& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.t38TCPBidirectionalMode = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeT38FaxProfile(T38FaxProfile& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.fillBitRemoval = PerReadBit(r);
  m.transcodingJBIG = PerReadBit(r);
  m.transcodingMMR = PerReadBit(r);
  if (!m.isExtended) return;

  const uint8_t additions = PerReadBitmapLength8(r);
  m.hasVersion = PerReadAdditionBit(r, additions, 0);
  m.hasT38FaxRateManagement = PerReadAdditionBit(r, additions, 1);
  m.hasT38FaxUdpOptions = PerReadAdditionBit(r, additions, 2);
  m.hasT38FaxTcpOptions = PerReadAdditionBit(r, additions, 3);
  const int32_t unknown = PerCountUnknownAdditions(r, additions, 4);
  if (m.hasVersion) InOpenType(r, [&] { m.version = PerReadNumber<uint8_t>(r, 0, 255); });
  if (m.hasT38FaxRateManagement) InOpenType(r, [&] { DecodeNullChoice(m.t38FaxRateManagement, r); });
  if (m.hasT38FaxUdpOptions) InOpenType(r, [&] { DecodeT38FaxUdpOptions(m.t38FaxUdpOptions, r); });
  if (m.hasT38FaxTcpOptions) InOpenType(r, [&] { DecodeT38FaxTcpOptions(m.t38FaxTcpOptions, r); });
  PerSkipOpenTypes(r, unknown);
}

}  // namespace kelvra::h245
