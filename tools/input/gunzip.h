// Decompresses gzip (RFC 1952) in pieces.
#pragma once

#include <zlib.h>

#include <cstdint>
#include <functional>
#include <span>
#include <stdexcept>
#include <vector>

class GzipError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

class Gunzip {
 public:
  // Writes to the start of the span and returns the number of octets, 0 only at the end.
  using Reader = std::function<size_t(std::span<uint8_t>)>;

  static constexpr size_t kMagicOctets = 4;
  static bool IsCompressed(std::span<const uint8_t> start);
  // True if these octets may be the start of compressed data.
  static bool MayBeCompressed(std::span<const uint8_t> start);

  // `start` holds the first octets of the file.
  explicit Gunzip(std::span<const uint8_t> start);
  ~Gunzip();
  Gunzip(const Gunzip&) = delete;
  Gunzip& operator=(const Gunzip&) = delete;

  // Returns the number of octets written, 0 only at the end. Throws GzipError.
  size_t Read(std::span<uint8_t> to, const Reader& reader);

 private:
  bool Refill(const Reader& reader);
  // Returns false if there is no further member.
  bool StartMember(const Reader& reader);

  z_stream stream_{};
  std::vector<uint8_t> compressed_;
  bool member_ended_ = false;
};
