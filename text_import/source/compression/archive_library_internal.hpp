// SPDX-License-Identifier: MIT
//
// libarchive, loaded when the first archive is opened: with the eight libraries that it brings, it
// takes longer to load than all the other libraries of a program together, and few texts are
// packed in a way that needs it.
#pragma once

#include <string>

#include <archive.h>
#include <archive_entry.h>

namespace textimport {

/// The functions of libarchive that are called, by their own names.
struct ArchiveLibrary {
  decltype(&::archive_entry_is_data_encrypted) archive_entry_is_data_encrypted;
  decltype(&::archive_entry_pathname) archive_entry_pathname;
  decltype(&::archive_errno) archive_errno;
  decltype(&::archive_error_string) archive_error_string;
  decltype(&::archive_filter_count) archive_filter_count;
  decltype(&::archive_read_data_block) archive_read_data_block;
  decltype(&::archive_read_free) archive_read_free;
  decltype(&::archive_read_new) archive_read_new;
  decltype(&::archive_read_next_header) archive_read_next_header;
  decltype(&::archive_read_open) archive_read_open;
  decltype(&::archive_read_support_filter_bzip2) archive_read_support_filter_bzip2;
  decltype(&::archive_read_support_filter_lz4) archive_read_support_filter_lz4;
  decltype(&::archive_read_support_filter_xz) archive_read_support_filter_xz;
  decltype(&::archive_read_support_filter_zstd) archive_read_support_filter_zstd;
  decltype(&::archive_read_support_format_empty) archive_read_support_format_empty;
  decltype(&::archive_read_support_format_raw) archive_read_support_format_raw;
  decltype(&::archive_read_support_format_zip_streamable)
      archive_read_support_format_zip_streamable;
  decltype(&::archive_set_error) archive_set_error;
};

/// Loads libarchive from the library file of that name, which stays loaded. Throws ImportError
/// (UnsupportedArchive) with `path`, the text that needs it, when it cannot be loaded.
ArchiveLibrary load_archive_library(char const* file, std::string const& path);

/// The libarchive that this was compiled for, loaded at the first call; with the same error.
ArchiveLibrary const& the_archive_library(std::string const& path);

}  // namespace textimport
