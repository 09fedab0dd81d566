// The command line.
#pragma once

#include <optional>
#include <string>

#include "formats/formats.h"
#include "input/capture.h"
#include "input/input.h"

struct Options {
  std::string file = "-";
  InputKind input = InputKind::kAuto;
  Format format = Format::kSummary;
  std::optional<Family> family;
  CapturePorts ports;
};

// The exit statuses.
constexpr int kAllDecoded = 0;
constexpr int kSomeMalformed = 1;
constexpr int kUnusable = 2;

// Fills the options; returns an exit status when there is nothing more to do.
std::optional<int> ParseOptions(int count, char** arguments, Options& options);
