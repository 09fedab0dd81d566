#include "input/gunzip.h"

#include <algorithm>
#include <array>
#include <new>

namespace {

constexpr size_t kPieceOctets = 0x10000;
constexpr int kGzipOnly = 16;  // added to the window bits

constexpr std::array<uint8_t, 3> kMagic{0x1F, 0x8B, Z_DEFLATED};
constexpr uint8_t kReservedFlags = 0xE0;

}  // namespace

bool Gunzip::MayBeCompressed(std::span<const uint8_t> start) {
  const size_t known = std::min(start.size(), kMagic.size());
  return std::equal(kMagic.begin(), kMagic.begin() + known, start.begin()) &&
         (start.size() < kMagicOctets || (start[3] & kReservedFlags) == 0);
}

bool Gunzip::IsCompressed(std::span<const uint8_t> start) {
  return start.size() >= kMagicOctets && MayBeCompressed(start);
}

Gunzip::Gunzip(std::span<const uint8_t> start) : compressed_(std::max(kPieceOctets, start.size())) {
  if (inflateInit2(&stream_, MAX_WBITS + kGzipOnly) != Z_OK) throw std::bad_alloc();
  std::copy(start.begin(), start.end(), compressed_.begin());
  stream_.next_in = compressed_.data();
  stream_.avail_in = static_cast<uInt>(start.size());
}

Gunzip::~Gunzip() { inflateEnd(&stream_); }

bool Gunzip::Refill(const Reader& reader) {
  if (stream_.avail_in > 0) return true;
  stream_.next_in = compressed_.data();
  stream_.avail_in = static_cast<uInt>(reader(compressed_));
  return stream_.avail_in > 0;
}

size_t Gunzip::Read(std::span<uint8_t> to, const Reader& reader) {
  stream_.next_out = to.data();
  stream_.avail_out = static_cast<uInt>(to.size());
  while (stream_.avail_out == to.size()) {
    if (member_ended_ && !StartMember(reader)) break;
    if (!Refill(reader)) throw GzipError("the compressed data end early");
    const int status = inflate(&stream_, Z_NO_FLUSH);
    member_ended_ = status == Z_STREAM_END;
    if (!member_ended_ && status != Z_OK && status != Z_BUF_ERROR) {
      throw GzipError("the compressed data are damaged");
    }
  }
  return to.size() - stream_.avail_out;
}

// Further members may follow, and zero padding after the last, as from a tape block.
bool Gunzip::StartMember(const Reader& reader) {
  bool padded = false;
  while (Refill(reader) && *stream_.next_in == 0) {
    padded = true;
    ++stream_.next_in;
    --stream_.avail_in;
  }
  if (stream_.avail_in == 0) return false;
  if (padded || *stream_.next_in != kMagic[0]) throw GzipError("something else follows the compressed data");
  inflateReset(&stream_);
  member_ended_ = false;
  return true;
}
