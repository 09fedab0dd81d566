// The manual page and the shell completion, generated from the program's options.
#pragma once

#include <string>

namespace CLI {
class App;
}

// For --help: the essential notes, and where to find the rest.
std::string HelpNotes();
// A page for man(1).
std::string ManualPage(const CLI::App& app);
// A bash completion script.
std::string BashCompletion(const CLI::App& app);
