// The forms in which calls are printed, and messages of selected calls.
#pragma once

#include <memory>
#include <string>

#include "calls/call.h"
#include "calls/filter.h"
#include "formats/formats.h"

class CallFormatter {
 public:
  virtual ~CallFormatter() = default;
  // Whether it prints the messages of a call, which therefore must be kept.
  virtual bool NeedsMessages() const { return false; }
  // Each appends to the text.
  virtual void Begin(std::string& /*text*/) {}
  virtual void Print(const Call& call, std::string& text) = 0;
  virtual void Finish(std::string& /*text*/) {}
};

// One line per call.
std::unique_ptr<CallFormatter> MakeCallTable(const FormatOptions& options);
// Every fact, a block per call.
std::unique_ptr<CallFormatter> MakeCallBlocks();
std::unique_ptr<CallFormatter> MakeLadder(const Filter& filter);
// One page.
std::unique_ptr<CallFormatter> MakeHtml(const Filter& filter);

// Prints calls instead of messages: in the order in which they begin, or each as soon as it has ended.
enum class CallOrder : uint8_t { kByBeginning, kByEnd };
std::unique_ptr<Formatter> MakeCallReport(std::unique_ptr<CallFormatter> formatter, const Filter& filter,
                                          CallOrder order);

// Prints the messages that the filter wants.
std::unique_ptr<Formatter> MakeSelection(std::unique_ptr<Formatter> formatter, const Filter& filter);

// Prints the statistics of what the filter wants.
std::unique_ptr<Formatter> MakeStatistics(const Filter& filter);
