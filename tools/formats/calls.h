// The output formats for calls, and for the messages of selected calls.
#pragma once

#include <memory>
#include <string>

#include "calls/call.h"
#include "calls/filter.h"
#include "formats/formats.h"
#include "formats/output.h"

class CallFormatter {
 public:
  virtual ~CallFormatter() = default;
  // True if it prints the wanted messages of a call, which must keep them.
  virtual bool NeedsMessages() const { return false; }
  // Each appends to the text.
  virtual void Begin(std::string& /*text*/) {}
  virtual void Print(const Call& call, Output& output) = 0;
  virtual void Finish(std::string& /*text*/) {}
};

// One line per call.
std::unique_ptr<CallFormatter> MakeCallTable(const FormatOptions& options);
// One block per call with every fact.
std::unique_ptr<CallFormatter> MakeCallBlocks(const FormatOptions& options);
std::unique_ptr<CallFormatter> MakeLadder(const Filter& filter, const FormatOptions& options);
// One page.
std::unique_ptr<CallFormatter> MakeHtml(const Filter& filter, const FormatOptions& options);

// Prints calls instead of messages, in order of their start or each as soon as it ends. Parts of a long call go
// straight to `write`.
enum class CallOrder : uint8_t { kByBeginning, kByEnd };
std::unique_ptr<Formatter> MakeCallReport(std::unique_ptr<CallFormatter> formatter, const Filter& filter,
                                          CallOrder order, Output::Write write);

// Prints the messages that pass the filter.
std::unique_ptr<Formatter> MakeSelection(std::unique_ptr<Formatter> formatter, const Filter& filter);

// Prints statistics of what passes the filter.
std::unique_ptr<Formatter> MakeStatistics(const Filter& filter);
