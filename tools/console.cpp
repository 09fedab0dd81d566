#include "console.h"

#include <sys/stat.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

#if defined(_WIN32)
constexpr int kInput = 0;
constexpr int kOutput = 1;
#endif

void Require(bool is_written) {
  if (!is_written) throw std::runtime_error("the output cannot be written");
}

}  // namespace

void PrepareStandardStreams() {
#if defined(_WIN32)
  _setmode(kInput, _O_BINARY);
  _setmode(kOutput, _O_BINARY);
#endif
  static std::array<char, 1 << 16> buffer;
  std::setvbuf(stdout, buffer.data(), _IOFBF, buffer.size());
}

bool OutputIsTerminal() {
#if defined(_WIN32)
  return _isatty(kOutput) != 0;
#else
  return isatty(STDOUT_FILENO) != 0;
#endif
}

void WriteOutput(std::string_view text) { Require(std::fwrite(text.data(), 1, text.size(), stdout) == text.size()); }

void FlushOutput() { Require(std::fflush(stdout) == 0); }

bool IsRegularFile(const std::string& path) {
  if (path != "-") return std::filesystem::is_regular_file(path);
#if defined(_WIN32)
  struct _stat64 status {};
  return _fstat64(kInput, &status) == 0 && (status.st_mode & _S_IFMT) == _S_IFREG;
#else
  struct stat status {};
  return fstat(STDIN_FILENO, &status) == 0 && S_ISREG(status.st_mode);
#endif
}
