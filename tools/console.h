// The standard streams.
#pragma once

// Makes standard input and output carry octets unchanged, and output fully buffered.
void PrepareStandardStreams();

bool OutputIsTerminal();
