// kelvra-dump prints the H.323 signalling of a capture, or single messages.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>

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

// Null if the format prints messages.
std::unique_ptr<CallFormatter> MakeCallFormatter(const Options& options) {
  switch (options.format) {
    case Format::kCallTable: return MakeCallTable(options.formatting);
    case Format::kCalls: return MakeCallBlocks(options.formatting);
    case Format::kLadder: return MakeLadder(options.filter, options.formatting);
    case Format::kHtml: return MakeHtml(options.filter, options.formatting);
    default: return nullptr;
  }
}

std::unique_ptr<Formatter> MakeFormatter(const Options& options) {
  if (options.format == Format::kStatistics) return MakeStatistics(options.filter);
  if (auto calls = MakeCallFormatter(options)) {
    const bool ends = std::all_of(options.files.begin(), options.files.end(), IsRegularFile);
    const CallOrder order = ends ? CallOrder::kByBeginning : CallOrder::kByEnd;
    return MakeCallReport(std::move(calls), options.filter, order, WriteOutput);
  }
  auto messages = MakeMessageFormatter(options.format, options.formatting);
  return options.filter.IsEmpty() ? std::move(messages) : MakeSelection(std::move(messages), options.filter);
}

class Printer : public MessageSink {
 public:
  // With `names_inputs`, each message and loss shows its file.
  Printer(std::unique_ptr<Formatter> formatter, bool flushes, bool names_inputs)
      : formatter_(std::move(formatter)), flushes_(flushes), names_inputs_(names_inputs) {}

  void OnInput(const std::string& name) override { input_ = std::make_shared<const std::string>(name); }
  // A program that waits for each message gets it at once.
  void FlushEachMessage() { flushes_ = true; }

  std::vector<Announced> OnMessage(const Message& message) override {
    any_ = true;
    const DecodedMessage decoded = DecodeMessage(message.family, message.octets);
    all_complete_ = all_complete_ && AreComplete(decoded);
    text_.clear();
    if (names_inputs_) {
      Message named = message;
      named.file = message.origin ? message.origin->file : input_;
      formatter_->Print(named, decoded, text_);
    } else {
      formatter_->Print(message, decoded, text_);
    }
    Write();
    return message.origin ? AnnouncedBy(decoded) : std::vector<Announced>();
  }

  void OnLoss(const std::string& what, const FileName& file) override {
    any_ = true;
    all_complete_ = false;
    Complain(names_inputs_ && file ? *file + ": " + what : what);
  }

  void OnNotice(const std::string& what) override { Complain(what); }

  void OnMediaPacket(const Origin& origin, uint8_t payload_type, uint32_t /*ssrc*/) override {
    formatter_->OnMediaPacket(origin, payload_type);
  }

  void OnRefusedConnection(const Origin& origin) override {
    any_ = true;
    formatter_->OnRefusedConnection(origin);
  }

  // Called after the last message.
  void Finish() {
    text_.clear();
    formatter_->Finish(text_);
    Write();
    FlushOutput();
  }

  bool AllComplete() const { return all_complete_; }
  // True if there was a message, or a loss that may have been one.
  bool Any() const { return any_; }

 private:
  static bool AreComplete(const DecodedMessage& decoded) {
    return decoded.IsComplete() && std::all_of(decoded.tunnelled.begin(), decoded.tunnelled.end(), AreComplete);
  }

  void Write() {
    WriteOutput(text_);
    if (flushes_) FlushOutput();
  }

  std::unique_ptr<Formatter> formatter_;
  bool flushes_;
  bool names_inputs_;
  FileName input_;
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

// Returns true if the file is a capture.
bool RunFile(const std::string& file, const Options& options, CaptureReader& captures, Printer& printer) {
  ByteSource source(file);
  printer.OnInput(source.Name());
  if (!source.IsRegularFile()) printer.FlushEachMessage();
  const auto input = options.input == InputKind::kAuto ? DetectInput(source) : options.input;
  if (input == InputKind::kHex || input == InputKind::kRaw) {
    const auto read = input == InputKind::kHex ? ReadHexText : ReadRaw;
    read(source, RequiredFamily(options), printer);
    return false;
  }
  if (options.family) {
    throw std::runtime_error(
        "--as does not go with a capture, whose ports give the families; see the "
        "options --ras-port, --call-port and --h245-port");
  }
  captures.Read(source);
  return true;
}

void Run(const Options& options, Printer& printer) {
  CaptureReader captures(options.ports, printer);
  bool any_capture = false;
  try {
    for (const std::string& file : options.files) {
      any_capture = RunFile(file, options, captures, printer) || any_capture;
    }
  } catch (const InputError&) {
    captures.Close();  // show what was read
    throw;
  }
  captures.Close();
  if (any_capture && !printer.Any()) Complain("no message found; see --ras-port, --call-port and --h245-port");
}

int RunProgram(int count, char** arguments) {
  Options options;
  if (const auto status = ParseOptions(count, arguments, options)) return *status;
  options.formatting.isColored = WantsColor(options.color);
  const bool flushes = options.flushesLines || OutputIsTerminal();
  Printer printer(MakeFormatter(options), flushes, options.files.size() > 1);
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
