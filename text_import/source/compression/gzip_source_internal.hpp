// SPDX-License-Identifier: MIT
//
// gzip data, one member or several behind each other, by zlib itself: it compares the checksums
// and delivers everything in front of a fault, which the archive library does not.
#pragma once

#include <zlib.h>

#include "text_import/source/compression/decompressing_source_internal.hpp"

namespace textimport {

class GzipSource : public DecompressingSource {
 public:
  GzipSource(std::unique_ptr<ByteSource> raw, std::string const& path, OpenOptions const& options,
             std::vector<std::string>& warnings);

  GzipSource(GzipSource const&) = delete;
  GzipSource(GzipSource&&) = delete;
  GzipSource& operator=(GzipSource const&) = delete;
  GzipSource& operator=(GzipSource&&) = delete;
  ~GzipSource() override;

 private:
  std::size_t decompress(char* room, std::size_t capacity) override;
  bool has_input();
  void begin_next_member();
  void skip_padding();
  void fail(int result) const;

  z_stream stream_{};
  std::vector<std::string>& warnings_;
  bool is_between_members_ = false;
  bool is_at_end_ = false;
};

}  // namespace textimport
