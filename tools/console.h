// The standard streams.
#pragma once

#include <string>

// Makes standard input and output binary, and output fully buffered.
void PrepareStandardStreams();

bool OutputIsTerminal();

// True if the path names a regular file ("-": standard input), whose octets are all there already.
bool IsRegularFile(const std::string& path);
