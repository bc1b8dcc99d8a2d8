// SPDX-License-Identifier: MIT
//
// gzip data, one member or several behind each other, by zlib itself: it compares the checksums
// and delivers everything in front of a fault, which the archive library does not.
#pragma once

#include <zlib.h>

#include "text_import/source/decompressing_source_internal.hpp"

namespace textimport {

class gzip_source : public decompressing_source {
 public:
  gzip_source(std::unique_ptr<byte_source> raw, std::string const& path,
              open_options const& options, std::vector<std::string>& warnings);

  gzip_source(gzip_source const&) = delete;
  gzip_source(gzip_source&&) = delete;
  gzip_source& operator=(gzip_source const&) = delete;
  gzip_source& operator=(gzip_source&&) = delete;
  ~gzip_source() override;

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
