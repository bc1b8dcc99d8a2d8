// SPDX-License-Identifier: MIT
#include "text_import/source/compression/archive_library_internal.hpp"

#include <dlfcn.h>

#include "text_import/import_error.hpp"

namespace textimport {
namespace {

[[noreturn]] void throw_not_loaded(std::string const& path) {
  char const* const reason = ::dlerror();
  throw ImportError(ImportErrorKind::UnsupportedArchive, path,
                    "libarchive, which unpacks such data, could not be loaded (" +
                        std::string(reason == nullptr ? "no reason is known" : reason) +
                        "); install it, or unpack the file first");
}

template <class Function>
void find(void* const handle, Function*& function, char const* const name,
          std::string const& path) {
  void* const address = ::dlsym(handle, name);
  if (address == nullptr) {
    throw_not_loaded(path);
  }
  function = reinterpret_cast<Function*>(address);
}

}  // namespace

ArchiveLibrary load_archive_library(char const* const file, std::string const& path) {
  void* const handle = ::dlopen(file, RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) {
    throw_not_loaded(path);
  }
  ArchiveLibrary library{};
  find(handle, library.archive_entry_is_data_encrypted, "archive_entry_is_data_encrypted", path);
  find(handle, library.archive_entry_pathname, "archive_entry_pathname", path);
  find(handle, library.archive_errno, "archive_errno", path);
  find(handle, library.archive_error_string, "archive_error_string", path);
  find(handle, library.archive_filter_count, "archive_filter_count", path);
  find(handle, library.archive_read_data_block, "archive_read_data_block", path);
  find(handle, library.archive_read_free, "archive_read_free", path);
  find(handle, library.archive_read_new, "archive_read_new", path);
  find(handle, library.archive_read_next_header, "archive_read_next_header", path);
  find(handle, library.archive_read_open, "archive_read_open", path);
  find(handle, library.archive_read_support_filter_bzip2, "archive_read_support_filter_bzip2",
       path);
  find(handle, library.archive_read_support_filter_lz4, "archive_read_support_filter_lz4", path);
  find(handle, library.archive_read_support_filter_xz, "archive_read_support_filter_xz", path);
  find(handle, library.archive_read_support_filter_zstd, "archive_read_support_filter_zstd", path);
  find(handle, library.archive_read_support_format_empty, "archive_read_support_format_empty",
       path);
  find(handle, library.archive_read_support_format_raw, "archive_read_support_format_raw", path);
  find(handle, library.archive_read_support_format_zip_streamable,
       "archive_read_support_format_zip_streamable", path);
  find(handle, library.archive_set_error, "archive_set_error", path);
  return library;
}

ArchiveLibrary const& the_archive_library(std::string const& path) {
  static ArchiveLibrary const library = load_archive_library(TEXT_IMPORT_LIBARCHIVE, path);
  return library;
}

}  // namespace textimport
