#include "input/byte_source.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "message.h"

void ByteSource::Close::operator()(std::FILE* file) const {
  if (file != stdin) std::fclose(file);
}

ByteSource::ByteSource(const std::string& path)
    : name_(path == "-" ? "standard input" : path), file_(path == "-" ? stdin : std::fopen(path.c_str(), "rb")) {
  if (!file_) throw InputError(name_ + ": " + std::strerror(errno));
}

size_t ByteSource::ReadFile(uint8_t* to, size_t count) {
  const size_t read = std::fread(to, 1, count, file_.get());
  if (read < count && std::ferror(file_.get()) != 0) {
    throw InputError(name_ + ": " + std::strerror(errno));
  }
  return read;
}

std::span<const uint8_t> ByteSource::Peek(size_t count) {
  const size_t held = peeked_.size();
  if (held < count) {
    peeked_.resize(count);
    peeked_.resize(held + ReadFile(peeked_.data() + held, count - held));
  }
  return peeked_;
}

size_t ByteSource::Read(uint8_t* to, size_t count) {
  const size_t held = std::min(count, peeked_.size() - peeked_used_);
  std::copy_n(peeked_.begin() + static_cast<std::ptrdiff_t>(peeked_used_), held, to);
  peeked_used_ += held;
  return held == count ? count : held + ReadFile(to + held, count - held);
}

int ByteSource::NextOctet() {
  if (peeked_used_ < peeked_.size()) return peeked_[peeked_used_++];
  const int octet = std::getc(file_.get());
  if (octet == EOF && std::ferror(file_.get()) != 0) {
    throw InputError(name_ + ": " + std::strerror(errno));
  }
  return octet;
}

bool ByteSource::ReadLine(std::string& line, size_t limit) {
  line.clear();
  int octet = NextOctet();
  if (octet == EOF) return false;
  for (; octet != EOF && octet != '\n'; octet = NextOctet()) {
    if (line.size() == limit) throw InputError(name_ + ": a line is too long for any message");
    line += static_cast<char>(octet);
  }
  return true;
}
