#include "options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <utility>
#include <vector>

#include "manual.h"

namespace {

template <class Value>
using Keywords = std::vector<std::pair<const char*, Value>>;

const Keywords<InputKind> kInputs{
    {"auto", InputKind::kAuto}, {"capture", InputKind::kCapture}, {"hex", InputKind::kHex}, {"raw", InputKind::kRaw}};
const Keywords<Format> kFormats{{"summary", Format::kSummary}, {"tree", Format::kTree},     {"json", Format::kJson},
                                {"calls", Format::kCalls},     {"ladder", Format::kLadder}, {"html", Format::kHtml}};
const Keywords<ColorChoice> kColors{
    {"auto", ColorChoice::kAuto}, {"always", ColorChoice::kAlways}, {"never", ColorChoice::kNever}};
const Keywords<Family> kFamilies{{"ras", Family::kRas}, {"q931", Family::kQ931}, {"h245", Family::kH245}};

template <class Value, class Target>
CLI::Option* AddKeyword(CLI::App& app, const char* name, const Keywords<Value>& keywords, Target& target,
                        const char* help) {
  std::vector<std::string> words;
  std::string type;
  for (const auto& keyword : keywords) {
    words.emplace_back(keyword.first);
    type += (type.empty() ? "" : "|") + words.back();
  }
  const auto set = [&keywords, &target](const std::string& word) {
    target = std::find_if(keywords.begin(), keywords.end(), [&word](const auto& keyword) {
               return word == keyword.first;
             })->second;
  };
  return app.add_option_function<std::string>(name, set, help)
      ->check(CLI::IsMember(std::move(words)).description(""))
      ->type_name(type);
}

void AddPorts(CLI::App& app, const char* name, std::set<uint16_t>& ports, const char* help) {
  app.add_option_function<std::vector<uint16_t>>(
         name, [&ports](const std::vector<uint16_t>& values) { ports.insert(values.begin(), values.end()); }, help)
      ->check(CLI::Range(1, 65535).description(""))
      ->type_name("PORT")
      ->allow_extra_args(false);
}

void AddTimeBound(CLI::App& app, const char* name, std::optional<TimeBound>& bound, const char* help) {
  const auto set = [name, &bound](const std::string& text) {
    bound = ParseTimeBound(text);
    if (!bound) throw CLI::ValidationError(name, "neither a time nor a time of day: " + text);
  };
  app.add_option_function<std::string>(name, set, help)->type_name("TIME");
}

void AddFilter(CLI::App& app, Filter& filter) {
  app.add_option("--call", filter.call, "only this call: its number, or the start of its identifier");
  app.add_option("--party", filter.party, "only calls with a party whose alias, number or address contains this text");
  app.add_option("--message", filter.message, "only messages of this name or Q.931 type, and calls with one");
  AddKeyword(app, "--family", kFamilies, filter.family, "only messages of this family, and calls with one");
  AddTimeBound(app, "--since", filter.since, "only messages from this UTC time or time of day on, and calls with one");
  AddTimeBound(app, "--until", filter.until, "only messages up to this time, and calls with one");
  app.add_flag("--faulty", filter.faulty, "only messages that are not complete, and calls in which something failed");
}

}  // namespace

std::optional<int> ParseOptions(int count, char** arguments, Options& options) {
  CLI::App app("Prints the H.323 signalling of a capture, or single messages.", "kelvra-dump");
  app.footer(HelpNotes());
  app.set_version_flag("--version", "kelvra-dump " KELVRA_VERSION);
  // Under Wine, for example, a path may start with '/'.
  app.allow_windows_style_options(false);
  app.add_option("FILE", options.files, "the files to read, in order; standard input if - or omitted")->type_name("");

  app.option_defaults()->group("Input");
  AddKeyword(app, "--input", kInputs, options.input, "the kind of input (auto: detected from its first octets)");
  AddKeyword(app, "--as", kFamilies, options.family, "the message family of hexadecimal or raw input");
  AddPorts(app, "--ras-port", options.ports.ras, "an additional UDP port for RAS (default 1718 and 1719)");
  AddPorts(app, "--call-port", options.ports.call_signalling,
           "an additional TCP port for call signalling (default 1720)");
  AddPorts(app, "--h245-port", options.ports.h245, "a TCP port for H.245");

  app.option_defaults()->group("Output");
  AddKeyword(app, "--format", kFormats, options.format,
             "messages: one line each (summary), every member (tree), or one JSON object per line (json); calls: all "
             "facts (calls), a diagram (ladder), or one page (html)");
  app.add_flag_callback(
      "--calls", [&options] { options.format = Format::kCallTable; }, "one line per call");
  app.add_flag_callback(
      "--stats", [&options] { options.format = Format::kStatistics; },
      "messages by kind, faults by cause, and how RAS requests were answered");
  app.add_flag("--octets", options.formatting.showsOctets,
               "in the tree, the octets and bits of each member (octet.bit-octet.bit) and the octets of the message");
  AddKeyword(app, "--color", kColors, options.color, "colours (auto: on a terminal, unless NO_COLOR is set)");
  app.add_flag("-l", options.flushesLines, "print each message at once; always on unless the input is a regular file");

  app.option_defaults()->group("Filters");
  AddFilter(app, options.filter);

  app.option_defaults()->group("Times");
  const auto setTimes = [&options](TimeStyle style) { return [&options, style] { options.formatting.times = style; }; };
  auto* local =
      app.add_flag_callback("--local", setTimes(TimeStyle::kLocal), "times in the local time zone instead of UTC");
  app.add_flag_callback("--relative", setTimes(TimeStyle::kRelative), "seconds since the first message")
      ->excludes(local);

  // --help does not show the options that make the manual page.
  app.option_defaults()->group("");
  std::string (*manual)(const CLI::App&) = nullptr;
  app.add_flag_callback("--manual-page", [&manual] { manual = ManualPage; });
  app.add_flag_callback("--bash-completion", [&manual] { manual = BashCompletion; });
  try {
    app.parse(count, arguments);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kAllComplete : kUnusable;
  }
  if (manual != nullptr) {
    std::fputs(manual(app).c_str(), stdout);
    return kAllComplete;
  }
  if (options.files.empty()) options.files = {"-"};
  return std::nullopt;
}
