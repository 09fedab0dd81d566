// The messages of tests/data with their values.
#pragma once

#include <cstdint>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "exact_buffer.h"
#include "text/hex.h"

using Json = nlohmann::json;
using kelvra::test::ExactBuffer;

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
