// SPDX-License-Identifier: MIT
//
// bzip2, xz, zstd and lz4 data, and a member of a zip archive, by libarchive, read forwards only.
#pragma once

#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "text_import/source/compression/archive_library_internal.hpp"
#include "text_import/source/compression/decompressing_source_internal.hpp"

namespace textimport {

class ArchiveSource : public DecompressingSource {
 public:
  /// `format` is a word of compression_of(). Of a zip archive, the wanted member is searched here,
  /// with the errors of decompress().
  ArchiveSource(std::unique_ptr<ByteSource> raw, std::string const& path, std::string const& format,
                OpenOptions const& options);

  ArchiveSource(ArchiveSource const&) = delete;
  ArchiveSource(ArchiveSource&&) = delete;
  ArchiveSource& operator=(ArchiveSource const&) = delete;
  ArchiveSource& operator=(ArchiveSource&&) = delete;
  ~ArchiveSource() override;

  /// The name of the member that is read; empty for what is no archive.
  [[nodiscard]] std::string const& member() const noexcept { return member_; }

 private:
  // The names met while walking through an archive: all are counted, the first are kept.
  struct MemberNames {
    std::vector<std::string> first;
    std::size_t count = 0;

    void add(std::string const& name);
    [[nodiscard]] std::string list() const;
  };

  std::size_t decompress(char* room, std::size_t capacity) override;
  void set_up(std::string const& format);
  bool next_member(std::string& name);
  void find_member(std::string const& wanted);
  void expect_one_filter() const;
  void expect_no_further_member();
  void read_next_data();
  [[noreturn]] void fail() const;

  // What libarchive calls for the next block of the file.
  static long deliver_block(archive* handle, void* self, void const** block);

  ArchiveLibrary const& library_;
  std::unique_ptr<archive, int (*)(archive*)> handle_;
  bool is_zip_;
  bool is_member_named_;
  bool has_data_ = false;
  std::string member_;
  std::string_view data_;  // decompressed and not yet delivered
  std::exception_ptr raw_failure_;
  bool has_failed_ = false;  // behind data_
};

}  // namespace textimport
