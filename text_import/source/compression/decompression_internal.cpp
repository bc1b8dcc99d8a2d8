// SPDX-License-Identifier: MIT
#include "text_import/source/compression/decompression_internal.hpp"

#include <utility>

#include "text_import/import_error.hpp"
#include "text_import/source/bytes/compression_marks_internal.hpp"
#include "text_import/source/compression/archive_source_internal.hpp"
#include "text_import/source/compression/gzip_source_internal.hpp"
#include "text_import/source/encoding/binary_content_internal.hpp"

namespace textimport {
namespace {

/// Bytes that were already read, then those that follow them.
class ReplayingSource : public ByteSource {
 public:
  ReplayingSource(std::string head, std::unique_ptr<ByteSource> rest)
      : head_(std::move(head)), rest_(std::move(rest)) {}

  std::size_t read(char* const room, std::size_t const capacity) override {
    if (replayed_ == head_.size()) {
      return rest_->read(room, capacity);
    }
    std::size_t const length = head_.copy(room, capacity, replayed_);
    replayed_ += length;
    return length;
  }

 private:
  std::string head_;
  std::size_t replayed_ = 0;
  std::unique_ptr<ByteSource> rest_;
};

/// The first bytes, enough to recognise what they are; fewer at the end.
std::string read_first_bytes(ByteSource& raw) {
  std::string head(sniffed_bytes, '\0');
  std::size_t length = 0;
  for (std::size_t delivered = 1; delivered != 0 && length < head.size(); length += delivered) {
    delivered = raw.read(head.data() + length, head.size() - length);
  }
  head.resize(length);
  return head;
}

}  // namespace

DecompressedBytes decompress(std::unique_ptr<ByteSource> raw, std::string const& path,
                             OpenOptions const& options, std::vector<std::string>& warnings) {
  std::string head = read_first_bytes(*raw);
  DecompressedBytes result;
  result.compression = compression_of(head);
  if (!options.member.empty() && result.compression != "zip") {
    throw ImportError(ImportErrorKind::MemberNotFound, path,
                      "the member " + options.member +
                          " was named, but the file is no zip archive; leave the member away");
  }
  if (options.member.empty()) {
    refuse_office_document(head, path);
  }
  auto replayed = std::make_unique<ReplayingSource>(std::move(head), std::move(raw));
  if (result.compression == "none") {
    result.bytes = std::move(replayed);
  } else if (result.compression == "gzip") {
    result.bytes = std::make_unique<GzipSource>(std::move(replayed), path, options, warnings);
  } else {
    auto source =
        std::make_unique<ArchiveSource>(std::move(replayed), path, result.compression, options);
    result.member = source->member();
    result.bytes = std::move(source);
  }
  return result;
}

}  // namespace textimport
