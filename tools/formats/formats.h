// The forms in which messages are printed.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "decode/decode.h"

enum class Format : uint8_t { kSummary, kTree, kJson };

class Formatter {
 public:
  virtual ~Formatter() = default;
  // Whole lines.
  virtual std::string Print(const Message& message, const Decoded& decoded) = 0;
};

std::unique_ptr<Formatter> MakeSummary();
std::unique_ptr<Formatter> MakeTree();
std::unique_ptr<Formatter> MakeJson();
