#include "input/capture.h"

void ReadCapture(ByteSource& source, const CapturePorts&, MessageSink&) {
  throw InputError(source.Name() +
                   ": this build reads no captures; hand over single messages as hexadecimal text "
                   "or raw octets with --as");
}
