#include "text/endpoint.h"

#include <gtest/gtest.h>

#include <array>

namespace {

TEST(Endpoint, DiffersInEachOctetInThePortAndInTheVersion) {
  std::array<uint8_t, 16> address{192, 0, 2, 1};
  const Endpoint endpoint = MakeEndpoint(address, 1720);
  EXPECT_EQ(endpoint, MakeEndpoint(address, 1720));
  EXPECT_NE(endpoint, MakeEndpoint(address, 1721));
  EXPECT_NE(endpoint, MakeEndpoint({address.data(), 4}, 1720));
  for (uint8_t& octet : address) {
    octet ^= 1;
    const Endpoint other = MakeEndpoint(address, 1720);
    EXPECT_NE(endpoint, other);
    EXPECT_NE(endpoint < other, other < endpoint);
    octet ^= 1;
  }
}

}  // namespace
