// Prints the media addresses that a Setup offers in its fast start: media_addresses HEX
//
// Shows how to get from a Q.931 message to its fast start, how to iterate over a list, and how to find out which
// alternative a CHOICE holds. HEX is the message with its TPKT header.
#include <kelvra/kelvra.h>
#include <kelvra/text.h>

#include <cstdio>
#include <memory>

#include "octets.h"

using namespace kelvra;

namespace {

// Releases the record's blocks with it.
struct Release {
  void operator()(h225::Q931MessageRecord* message) const {
    KelvraFreeQ931Message(message);
    delete message;
  }
};

void Print(const char* direction, const h245::H2250LogicalChannelParameters& channel) {
  if (channel.hasMediaChannel != 0) {
    std::printf("session %u %s media %s\n", +channel.sessionID, direction, TextOf(channel.mediaChannel).c_str());
  }
  if (channel.hasMediaControlChannel != 0) {
    std::printf("session %u %s control %s\n", +channel.sessionID, direction,
                TextOf(channel.mediaControlChannel).c_str());
  }
}

// A forward channel comes from the caller; a proposal for the other direction has reverse parameters.
void Print(const h245::OpenLogicalChannel& proposal) {
  using Forward = h245::OpenLogicalChannel::ForwardLogicalChannelParameters::MultiplexParameters;
  using Reverse = h245::OpenLogicalChannel::ReverseLogicalChannelParameters::MultiplexParameters;
  const Forward& forward = proposal.forwardLogicalChannelParameters.multiplexParameters;
  if (AlternativeOf(forward) == Forward::kH2250LogicalChannelParameters) {
    Print("forward", forward.h2250LogicalChannelParameters);
  }
  const auto& parameters = proposal.reverseLogicalChannelParameters;
  if (proposal.hasReverseLogicalChannelParameters == 0 || parameters.hasMultiplexParameters == 0) return;
  const Reverse& reverse = parameters.multiplexParameters;
  if (AlternativeOf(reverse) == Reverse::kH2250LogicalChannelParameters) {
    Print("reverse", reverse.h2250LogicalChannelParameters);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::vector<uint8_t> octets = OctetsOf(argv[1]);
  const std::unique_ptr<h225::Q931MessageRecord, Release> message(new h225::Q931MessageRecord);
  if (KelvraDecodeQ931Message(message.get(), octets.data(), static_cast<int32_t>(octets.size())) != 0) {
    std::puts("not decoded");
    return 1;
  }
  using Body = h225::H323UUPDU::H323MessageBody;
  const Body& body = message->userInformation.h323UuPdu.h323MessageBody;
  if (AlternativeOf(body) != Body::kSetup) {
    std::printf("no Setup but %s\n", NameOf(body));
    return 1;
  }
  for (const h245::OpenLogicalChannel& proposal : ElementsOf(body.setup.fastStart, body.setup.fastStartCount)) {
    Print(proposal);
  }
  return 0;
}
