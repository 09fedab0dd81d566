// kelvra-dump prints the H.323 signalling of a capture, or single messages.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "console.h"
#include "decode/decoded_message.h"
#include "formats/calls.h"
#include "formats/formats.h"
#include "options.h"

namespace {

void Complain(const std::string& what) {
  std::fflush(stdout);
  std::fprintf(stderr, "kelvra-dump: %s\n", what.c_str());
}

std::unique_ptr<Formatter> MakeMessageFormatter(Format format, const FormatOptions& options) {
  switch (format) {
    case Format::kSummary: return MakeSummary(options);
    case Format::kTree: return MakeTree(options);
    default: return MakeJson();
  }
}

// Null: the format prints messages.
std::unique_ptr<CallFormatter> MakeCallFormatter(const Options& options) {
  switch (options.format) {
    case Format::kCallTable: return MakeCallTable(options.formatting);
    case Format::kCalls: return MakeCallBlocks();
    case Format::kLadder: return MakeLadder(options.filter);
    case Format::kHtml: return MakeHtml(options.filter);
    default: return nullptr;
  }
}

std::unique_ptr<Formatter> MakeFormatter(const Options& options) {
  if (options.format == Format::kStatistics) return MakeStatistics(options.filter);
  if (auto calls = MakeCallFormatter(options)) {
    const CallOrder order = IsRegularFile(options.file) ? CallOrder::kByBeginning : CallOrder::kByEnd;
    return MakeCallReport(std::move(calls), options.filter, order);
  }
  auto messages = MakeMessageFormatter(options.format, options.formatting);
  return options.filter.IsEmpty() ? std::move(messages) : MakeSelection(std::move(messages), options.filter);
}

class Printer : public MessageSink {
 public:
  Printer(std::unique_ptr<Formatter> formatter, bool flushes) : formatter_(std::move(formatter)), flushes_(flushes) {}

  std::vector<Announced> OnMessage(const Message& message) override {
    any_ = true;
    const DecodedMessage decoded = DecodeMessage(message.family, message.octets);
    all_complete_ = all_complete_ && AreComplete(decoded);
    text_.clear();
    formatter_->Print(message, decoded, text_);
    Write();
    return message.origin ? AnnouncedBy(decoded) : std::vector<Announced>();
  }

  void OnLoss(const std::string& what) override {
    any_ = true;
    all_complete_ = false;
    Complain(what);
  }

  void OnNotice(const std::string& what) override { Complain(what); }

  void OnMediaPacket(const Origin& origin, uint8_t payload_type, uint32_t /*ssrc*/) override {
    formatter_->OnMediaPacket(origin, payload_type);
  }

  void OnRefusedConnection(const Origin& origin) override {
    any_ = true;
    formatter_->OnRefusedConnection(origin);
  }

  // After the last message.
  void Finish() {
    text_.clear();
    formatter_->Finish(text_);
    Write();
    if (std::fflush(stdout) != 0) throw std::runtime_error(kUnwritable);
  }

  bool AllComplete() const { return all_complete_; }
  // Whether there was a message, or a loss that can have been one.
  bool Any() const { return any_; }

 private:
  static constexpr const char* kUnwritable = "the output cannot be written";

  static bool AreComplete(const DecodedMessage& decoded) {
    return decoded.IsComplete() && std::all_of(decoded.tunnelled.begin(), decoded.tunnelled.end(), AreComplete);
  }

  void Write() {
    const size_t written = std::fwrite(text_.data(), 1, text_.size(), stdout);
    if (written < text_.size() || (flushes_ && std::fflush(stdout) != 0)) throw std::runtime_error(kUnwritable);
  }

  std::unique_ptr<Formatter> formatter_;
  bool flushes_;
  std::string text_;
  bool all_complete_ = true;
  bool any_ = false;
};

bool WantsColor(ColorChoice choice) {
  if (choice != ColorChoice::kAuto) return choice == ColorChoice::kAlways;
  const char* noColor = std::getenv("NO_COLOR");
  return OutputIsTerminal() && (noColor == nullptr || *noColor == '\0');
}

Family RequiredFamily(const Options& options) {
  if (!options.family) {
    throw std::runtime_error(
        "--as ras, q931 or h245 must name the family of single messages; the input is neither pcap nor pcapng");
  }
  return *options.family;
}

void Run(const Options& options, Printer& printer) {
  ByteSource source(options.file);
  const auto input = options.input == InputKind::kAuto ? DetectInput(source) : options.input;
  if (input == InputKind::kHex) return ReadHexLines(source, RequiredFamily(options), printer);
  if (input == InputKind::kRaw) return ReadRaw(source, RequiredFamily(options), printer);
  if (options.family) {
    throw std::runtime_error(
        "--as does not go with a capture, whose ports tell the families; see the "
        "options --ras-port, --call-port and --h245-port");
  }
  ReadCapture(source, options.ports, printer);
  if (!printer.Any()) Complain("no message found; see --ras-port, --call-port and --h245-port");
}

int RunProgram(int count, char** arguments) {
  Options options;
  if (const auto status = ParseOptions(count, arguments, options)) return *status;
  options.formatting.isColored = WantsColor(options.color);
  const bool flushes = options.flushesLines || OutputIsTerminal() || !IsRegularFile(options.file);
  Printer printer(MakeFormatter(options), flushes);
  Run(options, printer);
  printer.Finish();
  return printer.AllComplete() ? kAllComplete : kSomeIncomplete;
}

}  // namespace

int main(int count, char** arguments) {
  PrepareStandardStreams();
  try {
    return RunProgram(count, arguments);
  } catch (const std::exception& error) {
    Complain(error.what());
    return kUnusable;
  }
}
