// The command line.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calls/filter.h"
#include "formats/formats.h"
#include "input/capture.h"
#include "input/input.h"

enum class ColorChoice : uint8_t { kAuto, kAlways, kNever };

struct Options {
  std::vector<std::string> files;  // at least one
  InputKind input = InputKind::kAuto;
  Format format = Format::kSummary;
  FormatOptions formatting;
  Filter filter;
  ColorChoice color = ColorChoice::kAuto;
  bool flushesLines = false;
  std::optional<Family> family;
  CapturePorts ports;
};

// The exit statuses.
constexpr int kAllComplete = 0;
constexpr int kSomeIncomplete = 1;
constexpr int kUnusable = 2;

// Fills in the options; returns an exit status if there is nothing more to do.
std::optional<int> ParseOptions(int count, char** arguments, Options& options);
