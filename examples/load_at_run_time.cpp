// Loads the library at run time and decodes a RAS message: load_at_run_time LIBRARY HEX
//
// Shows that a program need not link to the library: it looks up the functions by their undecorated names. Only the
// headers are needed at compile time.
#include <kelvra/kelvra.h>
#include <kelvra/text.h>

#include <cstdio>

#include "octets.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace {

#if defined(_WIN32)
HMODULE Load(const char* path) { return LoadLibraryA(path); }
template <class Function>
Function* Find(HMODULE library, const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(GetProcAddress(library, name)));
}
#else
void* Load(const char* path) { return dlopen(path, RTLD_NOW | RTLD_LOCAL); }
template <class Function>
Function* Find(void* library, const char* name) {
  return reinterpret_cast<Function*>(dlsym(library, name));
}
#endif

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const auto library = Load(argv[1]);
  if (library == nullptr) {
    std::printf("%s cannot be loaded\n", argv[1]);
    return 1;
  }
  const auto decode = Find<decltype(KelvraDecodeRASMessage)>(library, "KelvraDecodeRASMessage");
  const auto release = Find<decltype(KelvraFreeRASMessage)>(library, "KelvraFreeRASMessage");
  if (decode == nullptr || release == nullptr) return 1;

  std::vector<uint8_t> octets = OctetsOf(argv[2]);
  octets.push_back(0);  // the spare octet that RAS needs
  kelvra::h225::RasMessageRecord message;
  const bool decoded = decode(&message, octets.data(), static_cast<uint32_t>(octets.size())) != 0;
  std::printf("%s\n", decoded ? kelvra::NameOf(message) : "not decoded");
  release(&message);
  return decoded ? 0 : 1;
}
