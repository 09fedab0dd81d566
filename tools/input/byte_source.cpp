#include "input/byte_source.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "input/gunzip.h"
#include "message.h"

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

constexpr int kStandardInput = 0;
constexpr size_t kBufferOctets = 0x10000;

int OpenFile(const char* path) {
#if defined(_WIN32)
  return _open(path, _O_RDONLY | _O_BINARY);
#else
  return open(path, O_RDONLY | O_CLOEXEC);
#endif
}

int ReadOnce(int descriptor, std::span<uint8_t> to) {
#if defined(_WIN32)
  return _read(descriptor, to.data(), static_cast<unsigned>(to.size()));
#else
  ssize_t count = 0;
  do {
    count = read(descriptor, to.data(), to.size());
  } while (count < 0 && errno == EINTR);
  return static_cast<int>(count);
#endif
}

void CloseFile(int descriptor) {
#if defined(_WIN32)
  _close(descriptor);
#else
  close(descriptor);
#endif
}

}  // namespace

ByteSource::File::File(const std::string& path) : descriptor_(path == "-" ? kStandardInput : OpenFile(path.c_str())) {
  if (descriptor_ < 0) throw InputError(path + ": " + std::strerror(errno));
}

ByteSource::File::~File() {
  if (descriptor_ != kStandardInput) CloseFile(descriptor_);
}

int ByteSource::File::Read(std::span<uint8_t> to) const { return ReadOnce(descriptor_, to); }

bool ByteSource::File::IsRegular() const {
  struct stat status {};
  return fstat(descriptor_, &status) == 0 && (status.st_mode & S_IFMT) == S_IFREG;
}

ByteSource::ByteSource(const std::string& path)
    : name_(path == "-" ? "standard input" : path), file_(path), buffer_(kBufferOctets) {
  while (Gunzip::MayBeCompressed(Held()) && Held().size() < Gunzip::kMagicOctets && Fill()) {
  }
  if (!Gunzip::IsCompressed(Held())) return;
  gunzip_ = std::make_unique<Gunzip>(Held());
  begin_ = end_ = 0;
}

ByteSource::~ByteSource() = default;

size_t ByteSource::ReadFile(std::span<uint8_t> to) {
  const int count = file_.Read(to);
  if (count < 0) throw InputError(name_ + ": " + std::strerror(errno));
  return static_cast<size_t>(count);
}

size_t ByteSource::ReadContent(std::span<uint8_t> to) {
  if (!gunzip_) return ReadFile(to);
  try {
    return gunzip_->Read(to, [this](std::span<uint8_t> compressed) { return ReadFile(compressed); });
  } catch (const GzipError& error) {
    throw InputError(name_ + ": " + error.what());
  }
}

bool ByteSource::Fill() {
  if (begin_ > 0) {
    std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
              buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
    end_ -= begin_;
    begin_ = 0;
  }
  if (end_ == buffer_.size()) buffer_.resize(2 * buffer_.size());
  const size_t count = ReadContent(std::span(buffer_).subspan(end_));
  end_ += count;
  return count > 0;
}

std::span<const uint8_t> ByteSource::Peek(size_t least) {
  while (Held().size() < least && Fill()) {
  }
  return Held();
}

std::span<const uint8_t> ByteSource::PeekLine(size_t most) {
  while (Held().size() < most && std::find(Held().begin(), Held().end(), '\n') == Held().end() && Fill()) {
  }
  return Held().first(std::min(most, Held().size()));
}

size_t ByteSource::Read(uint8_t* to, size_t count) {
  size_t read = 0;
  while (read < count && (begin_ < end_ || Fill())) {
    const auto part = Held().first(std::min(count - read, Held().size()));
    std::copy(part.begin(), part.end(), to + read);
    begin_ += part.size();
    read += part.size();
  }
  return read;
}

bool ByteSource::Skip(uint64_t count) {
  while (count > 0 && (begin_ < end_ || Fill())) {
    const auto part = static_cast<size_t>(std::min<uint64_t>(count, Held().size()));
    begin_ += part;
    count -= part;
  }
  return count == 0;
}

bool ByteSource::ReadLine(std::string& line, size_t limit) {
  line.clear();
  bool any = false;
  while (begin_ < end_ || Fill()) {
    any = true;
    const auto held = Held();
    const auto feed = std::find(held.begin(), held.end(), '\n');
    line.append(held.begin(), feed);
    if (line.size() > limit) throw InputError(name_ + ": a line is too long for any message");
    begin_ += static_cast<size_t>(feed - held.begin()) + (feed == held.end() ? 0 : 1);
    if (feed != held.end()) break;
  }
  return any;
}
