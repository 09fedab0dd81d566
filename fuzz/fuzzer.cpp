// The entry that libFuzzer and the driver of AFL++ call; each fuzzer defines KELVRA_FUZZ_BODY as its own.
#include "decode_and_release.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t size) {
  kelvra::fuzz::KELVRA_FUZZ_BODY(octets, size);
  return 0;
}
