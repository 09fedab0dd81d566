// The standard streams.
#pragma once

#include <string>

// Makes standard input and output carry octets unchanged, and output fully buffered.
void PrepareStandardStreams();

bool OutputIsTerminal();

// Whether what a path names, "-" standard input, is a file that holds all its octets already.
bool IsRegularFile(const std::string& path);
