// SPDX-License-Identifier: MIT
#include "text_import/source/compression/gzip_source_internal.hpp"

#include <algorithm>
#include <limits>
#include <new>
#include <string_view>

namespace textimport {
namespace {

constexpr int gzip_only_and_largest_window = 16 + MAX_WBITS;
constexpr Bytef first_magic_byte = 0x1F;

}  // namespace

GzipSource::GzipSource(std::unique_ptr<ByteSource> raw, std::string const& path,
                       OpenOptions const& options, std::vector<std::string>& warnings)
    : DecompressingSource(std::move(raw), path, "gzip", options), warnings_(warnings) {
  if (inflateInit2(&stream_, gzip_only_and_largest_window) != Z_OK) {
    throw std::bad_alloc();
  }
}

GzipSource::~GzipSource() {
  inflateEnd(&stream_);
}

std::size_t GzipSource::decompress(char* const room, std::size_t const capacity) {
  auto const usable =
      static_cast<uInt>(std::min<std::size_t>(capacity, std::numeric_limits<uInt>::max()));
  stream_.next_out = reinterpret_cast<Bytef*>(room);
  stream_.avail_out = usable;
  while (stream_.avail_out == usable && !is_at_end_) {
    if (is_between_members_) {
      begin_next_member();
      continue;
    }
    bool const more = has_input();
    int const result = inflate(&stream_, Z_NO_FLUSH);
    if (result == Z_STREAM_END) {
      is_between_members_ = true;
    } else if (stream_.avail_out < usable) {
      break;  // a fault is met again at the next call, behind what was delivered
    } else if (result == Z_BUF_ERROR && !more) {
      throw truncated();
    } else if (result != Z_OK && result != Z_BUF_ERROR) {
      fail(result);
    }
  }
  return usable - stream_.avail_out;
}

/// True when there are compressed bytes, read if necessary.
bool GzipSource::has_input() {
  if (stream_.avail_in == 0) {
    std::string_view const block = next_block();
    // zlib does not write through this pointer.
    stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(block.data()));
    stream_.avail_in = static_cast<uInt>(block.size());
  }
  return stream_.avail_in != 0;
}

/// Behind a member stands the end, another member, zeros that pad the file, or what is no gzip.
void GzipSource::begin_next_member() {
  skip_padding();
  if (!has_input()) {
    is_at_end_ = true;
  } else if (*stream_.next_in == first_magic_byte) {
    inflateReset(&stream_);
    is_between_members_ = false;
  } else {
    is_at_end_ = true;
    warnings_.emplace_back(
        "bytes that are no gzip data follow the compressed text; they are "
        "ignored");
  }
}

void GzipSource::skip_padding() {
  while (has_input() && *stream_.next_in == 0) {
    ++stream_.next_in;
    --stream_.avail_in;
  }
}

void GzipSource::fail(int const result) const {
  if (result == Z_MEM_ERROR) {
    throw std::bad_alloc();
  }
  std::string const detail = stream_.msg == nullptr ? "" : stream_.msg;
  if (detail == "incorrect data check" || detail == "incorrect length check") {
    throw wrong_checksum();
  }
  throw damaged(detail);
}

}  // namespace textimport
