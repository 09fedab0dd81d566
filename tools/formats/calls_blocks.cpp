// One block per call with every fact.
#include "calls/sections.h"
#include "formats/calls.h"
#include "text/concat.h"
#include "text/utf8.h"

namespace {

class CallBlocks : public CallFormatter {
 public:
  void Print(const Call& call, std::string& text) override {
    text += Concat({Printable(Heading(call)), "\n"});
    for (const Section& section : SectionsOf(call)) {
      text += Concat({"  ", section.title, "\n"});
      for (const std::string& line : section.lines) text += Concat({"    ", Printable(line), "\n"});
    }
    text += '\n';
  }
};

}  // namespace

std::unique_ptr<CallFormatter> MakeCallBlocks() { return std::make_unique<CallBlocks>(); }
