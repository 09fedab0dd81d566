// The messages of tests/data with their values.
#pragma once

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "text/hex.h"

using Json = nlohmann::json;

struct Vector {
  std::string name;
  std::vector<uint8_t> octets;
  Json expected;
};

inline std::vector<Vector> LoadVectors(const std::string& file) {
  std::ifstream stream(KELVRA_TEST_DATA "/" + file);
  std::vector<Vector> vectors;
  for (std::string line; std::getline(stream, line);) {
    const Json values = Json::parse(line);
    vectors.push_back({file + ":" + std::to_string(vectors.size() + 1) + " " + values.at("alt").get<std::string>(),
                       FromHex(values.at("hex").get<std::string>()), values.at("expected")});
  }
  if (vectors.empty()) throw std::runtime_error("no messages in " + file);
  return vectors;
}

// A heap block of exactly the right size, so that a sanitizer sees a read past it: the start of a message, then spare
// octets.
class ExactBuffer {
 public:
  ExactBuffer(const std::vector<uint8_t>& octets, size_t spare) : ExactBuffer(octets, octets.size(), spare) {}
  ExactBuffer(const std::vector<uint8_t>& octets, size_t count, size_t spare)
      : size_(count + spare), octets_(std::make_unique<uint8_t[]>(size_)) {
    std::copy_n(octets.begin(), count, octets_.get());
  }
  const uint8_t* octets() const { return octets_.get(); }
  uint32_t size() const { return static_cast<uint32_t>(size_); }

 private:
  size_t size_;
  std::unique_ptr<uint8_t[]> octets_;
};
