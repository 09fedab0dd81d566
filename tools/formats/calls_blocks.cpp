// One block per call with every fact.
#include "calls/sections.h"
#include "formats/calls.h"
#include "formats/console_text.h"
#include "text/concat.h"
#include "text/utf8.h"

namespace {

class CallBlocks : public CallFormatter {
 public:
  explicit CallBlocks(TimeZone zone) : zone_(zone) {}

  void Print(const Call& call, Output& output) override {
    std::string& text = output.Text();
    text += Concat({Printable(Heading(call)), "\n"});
    for (const Section& section : SectionsOf(call, zone_)) {
      text += Concat({"  ", section.title, "\n"});
      for (const std::string& line : section.lines) text += Concat({"    ", Printable(line), "\n"});
    }
    text += '\n';
  }

 private:
  TimeZone zone_;
};

}  // namespace

std::unique_ptr<CallFormatter> MakeCallBlocks(const FormatOptions& options) {
  return std::make_unique<CallBlocks>(ZoneOf(options.times));
}
