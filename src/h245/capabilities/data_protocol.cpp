#include "h245/capabilities/data_protocol_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

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
  PerFlags flags = PerReadFlags(r, 20);
  m.isExtended = flags.Next();
  m.qcif = flags.Next();
  m.cif = flags.Next();
  m.ccir601Seq = flags.Next();
  m.ccir601Prog = flags.Next();
  m.hdtvSeq = flags.Next();
  m.hdtvProg = flags.Next();
  m.g3FacsMH200x100 = flags.Next();
  m.g3FacsMH200x200 = flags.Next();
  m.g4FacsMMR200x100 = flags.Next();
  m.g4FacsMMR200x200 = flags.Next();
  m.jbig200x200Seq = flags.Next();
  m.jbig200x200Prog = flags.Next();
  m.jbig300x300Seq = flags.Next();
  m.jbig300x300Prog = flags.Next();
  m.digPhotoLow = flags.Next();
  m.digPhotoMedSeq = flags.Next();
  m.digPhotoMedProg = flags.Next();
  m.digPhotoHighSeq = flags.Next();
  m.digPhotoHighProg = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeT38FaxUdpOptions(T38FaxUdpOptions& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.hasT38FaxMaxBuffer = flags.Next();
  m.hasT38FaxMaxDatagram = flags.Next();
  if (m.hasT38FaxMaxBuffer) m.t38FaxMaxBuffer = PerReadInteger(r);
  if (m.hasT38FaxMaxDatagram) m.t38FaxMaxDatagram = PerReadInteger(r);
  DecodeNullChoice(m.t38FaxUdpEC, r);
}

void DecodeT38FaxTcpOptions(T38FaxTcpOptions& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.t38TCPBidirectionalMode = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeDataProtocolCapability(DataProtocolCapability& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 7);
  if (m.isExtension) {
    switch (index) {
      case 4: return DecodeOpen(m.v76wCompression, r, DecodeV76wCompression);
      default: return PerPassOverAlternative(r, index, 7);
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

void DecodeT38FaxProfile(T38FaxProfile& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.fillBitRemoval = flags.Next();
  m.transcodingJBIG = flags.Next();
  m.transcodingMMR = flags.Next();
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 4);
  m.hasVersion = known.Next();
  m.hasT38FaxRateManagement = known.Next();
  m.hasT38FaxUdpOptions = known.Next();
  m.hasT38FaxTcpOptions = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasVersion) m.version = PerReadOpenNumber<uint8_t>(r, 0, 255);
  if (m.hasT38FaxRateManagement) DecodeOpen(m.t38FaxRateManagement, r, DecodeNullChoice);
  if (m.hasT38FaxUdpOptions) DecodeOpen(m.t38FaxUdpOptions, r, DecodeT38FaxUdpOptions);
  if (m.hasT38FaxTcpOptions) DecodeOpen(m.t38FaxTcpOptions, r, DecodeT38FaxTcpOptions);
  PerSkipOpenTypes(r, unknown);
}

}  // namespace kelvra::h245
