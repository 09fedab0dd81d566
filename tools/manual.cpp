#include "manual.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using OptionList = std::vector<const CLI::Option*>;
using Section = std::pair<std::string_view, std::string_view>;

constexpr std::string_view kExitStatus =
    "0 if all messages are complete; 1 if some are not, if data was found where a message was expected, or if the "
    "capture lacks a part; 2 for bad usage, or if the input cannot be read or the output written.";

// Sections that --help leaves out.
constexpr Section kSections[] = {
    {"MESSAGES",
     "The viewer prints what it read of each message, and what is wrong with it: that it ends early, claims more than "
     "there is, or has octets left over. A registration that names a later version is read by the rules of version 4.\n"
     "The viewer passes a RAS message to the library with one spare zero octet, counted in the length, as every caller "
     "should: the library refuses a message that fills its buffer exactly."},
    {"INPUT",
     "In a capture the ports give the family of a message; further connections are found through the addresses that "
     "messages announce.\n"
     "Hexadecimal text has one message per line; blanks and colons may separate the octets, and a number sign starts a "
     "comment. Dumps with offsets (xxd, hexdump -C, packet tools) and C arrays are read too, one message each. Raw "
     "input is one message. Gzip input is unpacked. A call-signalling message starts with its TPKT header; an H.245 "
     "message does not."},
    {"CALLS",
     "Messages that share a call identifier, a call reference, a connection or an announced address make a call. A "
     "call is complete 90 seconds after its end by the times of the capture, or 5 minutes while the gatekeeper still "
     "counts it as admitted. After 8192 messages a call ends and another begins.\n"
     "A ladder has at most 64 columns; the last stands for all other hosts."},
    {"EXIT STATUS", kExitStatus},
    {"EXAMPLES",
     "kelvra-dump samples/call.pcap\n"
     "tcpdump -U -w - | kelvra-dump -\n"
     "echo '08 00 00 04 06 00 08 91 4A 00 05 20' | kelvra-dump --as ras"},
};

// A hidden option has no group.
OptionList OptionsToShow(const CLI::App& app) {
  return app.get_options([](const CLI::Option* option) { return !option->get_group().empty(); });
}

bool TakesValue(const CLI::Option& option) { return option.get_items_expected_max() > 0; }

// "--as", or "-l"; for help both "-h" and "--help".
std::vector<std::string> Names(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  return names;
}

std::string Joined(const std::vector<std::string>& words, std::string_view separator) {
  std::string text;
  for (const std::string& word : words) {
    if (!text.empty()) text += separator;
    text += word;
  }
  return text;
}

// Escapes text for troff: hyphens stay hyphens, and no line starts a request.
std::string Troff(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    const bool starts_line = escaped.empty() || escaped.back() == '\n';
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-') {
      escaped += "\\-";
    } else {
      if (starts_line && (c == '.' || c == '\'')) escaped += "\\&";
      escaped += c;
    }
  }
  return escaped;
}

std::string Paragraphs(std::string_view text, std::string_view separator) {
  std::string page;
  for (size_t start = 0; start <= text.size();) {
    const size_t end = std::min(text.find('\n', start), text.size());
    if (start > 0) page += separator;
    page += Troff(text.substr(start, end - start)) + '\n';
    start = end + 1;
  }
  return page;
}

std::string OptionEntry(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : Names(option)) names.push_back("\\fB" + Troff(name) + "\\fR");
  if (names.empty())
    return ".TP\n\\fI" + Troff(option.get_name(true)) + "\\fR\n" + Troff(option.get_description()) + '\n';
  std::string entry = ".TP\n" + Joined(names, ", ");
  if (TakesValue(option)) entry += " \\fI" + Troff(option.get_type_name()) + "\\fR";
  return entry + '\n' + Troff(option.get_description()) + '\n';
}

// The values of "ras|q931|h245"; none for "PORT".
std::vector<std::string> Values(const CLI::Option& option) {
  const std::string type = option.get_type_name();
  if (type.find('|') == std::string::npos) return {};
  std::vector<std::string> values(1);
  for (const char c : type) {
    if (c == '|') {
      values.emplace_back();
    } else {
      values.back() += c;
    }
  }
  return values;
}

}  // namespace

std::string HelpNotes() {
  return "Exit status: " + std::string(kExitStatus) + "\nThe manual page, man kelvra-dump, has more.";
}

std::string ManualPage(const CLI::App& app) {
  std::string page = ".TH KELVRA\\-DUMP 1\n.SH NAME\n" + Troff(app.get_name()) + " \\- prints H.323 signalling" +
                     "\n.SH SYNOPSIS\n.B kelvra\\-dump\n[\\fIoption\\fR ...] [\\fIFILE\\fR ...]\n.SH DESCRIPTION\n" +
                     Troff(app.get_description()) + '\n';
  std::string group;
  page += ".SH OPTIONS\n";
  for (const CLI::Option* option : OptionsToShow(app)) {
    if (option->get_group() != group) page += ".SS " + Troff(group = option->get_group()) + '\n';
    page += OptionEntry(*option);
  }
  for (const auto& [title, text] : kSections) {
    const bool is_example = title == "EXAMPLES";
    page += ".SH " + std::string(title) + '\n';
    page += (is_example ? ".nf\n" : "") + Paragraphs(text, is_example ? "" : ".PP\n") + (is_example ? ".fi\n" : "");
  }
  return page;
}

std::string BashCompletion(const CLI::App& app) {
  std::vector<std::string> words;
  std::string cases;
  for (const CLI::Option* option : OptionsToShow(app)) {
    const std::vector<std::string> names = Names(*option);
    words.insert(words.end(), names.begin(), names.end());
    if (names.empty() || !TakesValue(*option)) continue;
    const std::string values = Joined(Values(*option), " ");
    cases += "    " + Joined(names, "|") + ") COMPREPLY=($(compgen -W '" + values + "' -- \"$word\")); return ;;\n";
  }
  return "# Completion of kelvra-dump for bash.\n"
         "_kelvra_dump() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]}\n"
         "  case ${COMP_WORDS[COMP_CWORD-1]} in\n" +
         cases +
         "  esac\n"
         "  if [[ $word == -* ]]; then\n"
         "    COMPREPLY=($(compgen -W '" +
         Joined(words, " ") +
         "' -- \"$word\"))\n"
         "  else\n"
         "    COMPREPLY=($(compgen -f -- \"$word\"))\n"
         "  fi\n"
         "}\n"
         "complete -o filenames -F _kelvra_dump kelvra-dump\n";
}
