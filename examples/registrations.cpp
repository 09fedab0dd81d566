// Logs the registrations that reach a UDP socket on the loopback address: registrations [PORT [DATAGRAMS]]
//
// Shows a receive loop: the spare octet after the datagram, how to handle a refused message, and a reused record. With
// PORT 0 the system chooses. Ends after DATAGRAMS datagrams, or never if none is given.
#include <kelvra/kelvra.h>
#include <kelvra/text.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#if defined(_WIN32)
#include <winsock2.h>
#include <ws2tcpip.h>
using AddressLength = int;
#else
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
using AddressLength = socklen_t;
#endif

using namespace kelvra;

namespace {

void Log(const h225::RegistrationRequest& request) {
  std::string line = "registration " + std::to_string(request.requestSeqNum);
  for (const auto& alias : ElementsOf(request.terminalAlias, request.terminalAliasCount)) line += " " + TextOf(alias);
  for (const auto& address : ElementsOf(request.callSignalAddress, request.callSignalAddressCount)) {
    line += " at " + TextOf(address);
  }
  std::puts(line.c_str());
}

// `datagram` has a zero octet after it, which `size` does not count.
void Log(const uint8_t* datagram, uint32_t size) {
  static h225::RasMessageRecord message;
  if (KelvraDecodeRASMessage(&message, datagram, size + 1) == 0) {
    std::printf("refused, %u octets\n", size);
  } else if (AlternativeOf(message) == h225::RasMessageRecord::kRegistrationRequest) {
    Log(message.registrationRequest);
  } else {
    const char* name = NameOf(message);
    std::printf("ignored, %s\n", name == nullptr ? "unknown" : name);
  }
  KelvraFreeRASMessage(&message);
}

}  // namespace

int main(int argc, char** argv) {
#if defined(_WIN32)
  WSADATA data;
  if (WSAStartup(MAKEWORD(2, 2), &data) != 0) return 1;
#endif
  const auto receiver = socket(AF_INET, SOCK_DGRAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<uint16_t>(argc > 1 ? std::atoi(argv[1]) : 1719));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  AddressLength length = sizeof address;
  if (bind(receiver, reinterpret_cast<sockaddr*>(&address), length) != 0 ||
      getsockname(receiver, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
    std::puts("the port is not free");
    return 1;
  }
  std::printf("listening on %u\n", +ntohs(address.sin_port));
  std::fflush(stdout);

  const long datagrams = argc > 2 ? std::atol(argv[2]) : -1;
  std::array<char, 65536> buffer;
  for (long count = 0; count != datagrams; ++count) {
    const auto size = recv(receiver, buffer.data(), buffer.size() - 1, 0);
    if (size < 0) return 1;
    buffer[static_cast<size_t>(size)] = 0;
    Log(reinterpret_cast<const uint8_t*>(buffer.data()), static_cast<uint32_t>(size));
    std::fflush(stdout);
  }
  return 0;
}
