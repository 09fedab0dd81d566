#include "h245/capabilities/encryption_decode.h"
#include "h245/channels/data_type_decode.h"
#include "h245/channels/h2250_parameters_decode.h"
#include "h245/channels/multiplex_parameters_decode.h"
#include "h245/channels/network_access_decode.h"
#include "h245/channels/open_logical_channel_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeMultiplexParameters(OpenLogicalChannel::ForwardLogicalChannelParameters::MultiplexParameters& m,
                               PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.h2250LogicalChannelParameters, r, DecodeH2250LogicalChannelParameters);
      // `none` too, which takes no slot of the ring, unlike other NULLs that are known.
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeH222LogicalChannelParameters(m.h222LogicalChannelParameters, r);
    case 1: return DecodeH223LogicalChannelParameters(m.h223LogicalChannelParameters, r);
    case 2: return DecodeV76LogicalChannelParameters(m.v76LogicalChannelParameters, r);
    default: return;
  }
}

void DecodeForwardLogicalChannelParameters(OpenLogicalChannel::ForwardLogicalChannelParameters& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasPortNumber = flags.Next();
  if (m.hasPortNumber) m.portNumber = PerReadNumber<uint16_t>(r, 0, 65535);
  DecodeDataType(m.dataType, r);
  DecodeMultiplexParameters(m.multiplexParameters, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasForwardLogicalChannelDependency = known.Next();
  m.hasReplacementFor = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasForwardLogicalChannelDependency)
    m.forwardLogicalChannelDependency = PerReadOpenNumber<uint16_t>(r, 1, 65535);
  if (m.hasReplacementFor) m.replacementFor = PerReadOpenNumber<uint16_t>(r, 1, 65535);
  PerSkipOpenTypes(r, unknown);
}

void DecodeMultiplexParameters(OpenLogicalChannel::ReverseLogicalChannelParameters::MultiplexParameters& m,
                               PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.h2250LogicalChannelParameters, r, DecodeH2250LogicalChannelParameters);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeH223LogicalChannelParameters(m.h223LogicalChannelParameters, r);
    case 1: return DecodeV76LogicalChannelParameters(m.v76LogicalChannelParameters, r);
    default: return;
  }
}

void DecodeReverseLogicalChannelParameters(OpenLogicalChannel::ReverseLogicalChannelParameters& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasMultiplexParameters = flags.Next();
  DecodeDataType(m.dataType, r);
  if (m.hasMultiplexParameters) DecodeMultiplexParameters(m.multiplexParameters, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasReverseLogicalChannelDependency = known.Next();
  m.hasReplacementFor = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasReverseLogicalChannelDependency)
    m.reverseLogicalChannelDependency = PerReadOpenNumber<uint16_t>(r, 1, 65535);
  if (m.hasReplacementFor) m.replacementFor = PerReadOpenNumber<uint16_t>(r, 1, 65535);
  PerSkipOpenTypes(r, unknown);
}

void DecodeMultiplexParameters(OpenLogicalChannelAck::ReverseLogicalChannelParameters::MultiplexParameters& m,
                               PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 1);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.h2250LogicalChannelParameters, r, DecodeH2250LogicalChannelParameters);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeH222LogicalChannelParameters(m.h222LogicalChannelParameters, r);
    default: return;
  }
}

void DecodeReverseLogicalChannelParameters(OpenLogicalChannelAck::ReverseLogicalChannelParameters& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasPortNumber = flags.Next();
  m.hasMultiplexParameters = flags.Next();
  m.reverseLogicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasPortNumber) m.portNumber = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.hasMultiplexParameters) DecodeMultiplexParameters(m.multiplexParameters, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasReplacementFor = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasReplacementFor) m.replacementFor = PerReadOpenNumber<uint16_t>(r, 1, 65535);
  PerSkipOpenTypes(r, unknown);
}

void DecodeForwardMultiplexAckParameters(OpenLogicalChannelAck::ForwardMultiplexAckParameters& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 1);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeH2250LogicalChannelAckParameters(m.h2250LogicalChannelAckParameters, r);
    default: return;
  }
}

}  // namespace

void DecodeOpenLogicalChannel(OpenLogicalChannel& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasReverseLogicalChannelParameters = flags.Next();
  m.forwardLogicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  DecodeForwardLogicalChannelParameters(m.forwardLogicalChannelParameters, r);
  if (m.hasReverseLogicalChannelParameters) DecodeReverseLogicalChannelParameters(m.reverseLogicalChannelParameters, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasSeparateStack = known.Next();
  m.hasEncryptionSync = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasSeparateStack) DecodeOpen(m.separateStack, r, DecodeNetworkAccessParameters);
  if (m.hasEncryptionSync) DecodeOpen(m.encryptionSync, r, DecodeEncryptionSync);
  PerSkipOpenTypes(r, unknown);
}

void DecodeOpenLogicalChannelAck(OpenLogicalChannelAck& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasReverseLogicalChannelParameters = flags.Next();
  m.forwardLogicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasReverseLogicalChannelParameters) DecodeReverseLogicalChannelParameters(m.reverseLogicalChannelParameters, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 3);
  m.hasSeparateStack = known.Next();
  m.hasForwardMultiplexAckParameters = known.Next();
  m.hasEncryptionSync = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasSeparateStack) DecodeOpen(m.separateStack, r, DecodeNetworkAccessParameters);
  if (m.hasForwardMultiplexAckParameters)
    DecodeOpen(m.forwardMultiplexAckParameters, r, DecodeForwardMultiplexAckParameters);
  if (m.hasEncryptionSync) DecodeOpen(m.encryptionSync, r, DecodeEncryptionSync);
  PerSkipOpenTypes(r, unknown);
}

}  // namespace kelvra::h245
