// The manual page and the shell completion, made from the options that the program has.
#pragma once

#include <string>

namespace CLI {
class App;
}

// For --help: what a user must know, and where the rest stands.
std::string HelpNotes();
// A page for man(1).
std::string ManualPage(const CLI::App& app);
// A completion for bash.
std::string BashCompletion(const CLI::App& app);
