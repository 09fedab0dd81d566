// kelvra-dump prints the H.323 signalling of a capture, or single messages.
#include <cstdio>
#include <exception>

#include "console.h"
#include "decode/decode.h"
#include "decode/json_path.h"
#include "formats/formats.h"
#include "options.h"

namespace {

void Complain(const std::string& what) {
  std::fflush(stdout);
  std::fprintf(stderr, "kelvra-dump: %s\n", what.c_str());
}

std::unique_ptr<Formatter> MakeFormatter(Format format) {
  switch (format) {
    case Format::kSummary: return MakeSummary();
    case Format::kTree: return MakeTree();
    case Format::kJson: break;
  }
  return MakeJson();
}

class Printer : public MessageSink {
 public:
  explicit Printer(Format format)
      : formatter_(MakeFormatter(format)), form_(format == Format::kJson ? Form::kText : Form::kTree) {}

  std::vector<Announced> OnMessage(const Message& message) override {
    any_ = true;
    const Decoded decoded = Decode(message.family, message.octets, form_);
    all_decoded_ = all_decoded_ && decoded.ok;
    const std::string text = formatter_->Print(message, decoded);
    const size_t written = std::fwrite(text.data(), 1, text.size(), stdout);
    if (written < text.size() || (flush_ && std::fflush(stdout) != 0)) {
      throw std::runtime_error("the output cannot be written");
    }
    return AnnouncedBy(message, decoded);
  }

  void OnLoss(const std::string& what) override {
    any_ = true;
    all_decoded_ = false;
    Complain(what);
  }

  void OnNotice(const std::string& what) override { Complain(what); }

  bool AllDecoded() const { return all_decoded_; }
  // Whether there was a message, or a loss that can have been one.
  bool Any() const { return any_; }

 private:
  // Only a capture has connections to be found, and few of its messages announce one.
  static std::vector<Announced> AnnouncedBy(const Message& message, const Decoded& decoded) {
    if (message.family != Family::kQ931 || !message.origin) return {};
    if (decoded.json.find("\"h245Address\":") == std::string::npos) return {};
    const Json tree = Json::parse(decoded.json);
    const auto address = ToEndpoint(Find(Chosen(UserInformationBody(tree)), {"h245Address"}));
    return address ? std::vector{Announced{*address, Family::kH245}} : std::vector<Announced>();
  }

  std::unique_ptr<Formatter> formatter_;
  Form form_;
  bool flush_ = OutputIsTerminal();
  bool all_decoded_ = true;
  bool any_ = false;
};

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
  Printer printer(options.format);
  Run(options, printer);
  if (std::fflush(stdout) != 0) {
    Complain("the output cannot be written");
    return kUnusable;
  }
  return printer.AllDecoded() ? kAllDecoded : kSomeMalformed;
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
