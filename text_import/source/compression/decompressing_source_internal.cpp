// SPDX-License-Identifier: MIT
#include "text_import/source/compression/decompressing_source_internal.hpp"

#include <algorithm>
#include <utility>

namespace textimport {
namespace {

// Short texts of one repeated line are not suspicious, however well they compress.
constexpr std::uint64_t ratio_is_free_below = std::uint64_t{1} << 24U;

constexpr std::size_t compressed_block_bytes = std::size_t{1} << 16U;

}  // namespace

DecompressingSource::DecompressingSource(std::unique_ptr<ByteSource> raw, std::string path,
                                         std::string format, OpenOptions const& options)
    : raw_(std::move(raw)),
      path_(std::move(path)),
      format_(std::move(format)),
      ratio_limit_(options.ratio_limit),
      read_bytes_(options.block_bytes),
      block_(compressed_block_bytes) {}

std::size_t DecompressingSource::read(char* const room, std::size_t const capacity) {
  if (failure_) {
    std::rethrow_exception(failure_);
  }
  try {
    check_ratio();
    std::size_t const produced = decompress(room, capacity);
    produced_bytes_ += produced;
    return produced;
  } catch (...) {
    failure_ = std::current_exception();
    throw;
  }
}

std::string_view DecompressingSource::next_block() {
  std::size_t length = 0;
  for (std::size_t delivered = 1; delivered != 0 && length < block_.size(); length += delivered) {
    delivered = raw_->read(block_.data() + length, std::min(read_bytes_, block_.size() - length));
  }
  consumed_bytes_ += length;
  return {block_.data(), length};
}

void DecompressingSource::check_ratio() const {
  if (ratio_limit_ == 0 || produced_bytes_ <= ratio_is_free_below ||
      produced_bytes_ / ratio_limit_ <= consumed_bytes_) {
    return;
  }
  throw error(ImportErrorKind::RatioExceeded,
              "the " + format_ + " data grow to more than " + std::to_string(ratio_limit_) +
                  " times their size; raise the limit if you trust the file");
}

ImportError DecompressingSource::error(ImportErrorKind const kind,
                                       std::string const& message) const {
  return ImportError(kind, path_, message).at_byte(produced_bytes_);
}

ImportError DecompressingSource::truncated() const {
  std::string const where =
      produced_bytes_ == 0
          ? ", before any text came out of them"
          : ", behind byte " + std::to_string(produced_bytes_) + " of the decompressed text";
  return error(ImportErrorKind::TruncatedCompression,
               "the " + format_ + " data end too early" + where + "; get the whole file");
}

ImportError DecompressingSource::damaged(std::string const& detail) const {
  std::string const where =
      produced_bytes_ == 0
          ? ", no text came out of them"
          : " behind byte " + std::to_string(produced_bytes_) + " of the decompressed text";
  return error(ImportErrorKind::DamagedCompression,
               "the " + format_ + " data are damaged" + where +
                   (detail.empty() ? "" : " (" + detail + ")") + "; get the file again");
}

ImportError DecompressingSource::wrong_checksum() const {
  return error(ImportErrorKind::WrongChecksum,
               "the checksum of the " + format_ +
                   " data is wrong, so that some of the text may be altered; get the file again");
}

}  // namespace textimport
