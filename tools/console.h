// The standard streams.
#pragma once

#include <string>
#include <string_view>

// Makes standard input and output binary, and output fully buffered.
void PrepareStandardStreams();

bool OutputIsTerminal();

// Both throw std::runtime_error if the output cannot be written.
void WriteOutput(std::string_view text);
void FlushOutput();

// True if the path names a regular file ("-": standard input), whose octets are all there already.
bool IsRegularFile(const std::string& path);
