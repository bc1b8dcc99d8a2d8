// SPDX-License-Identifier: MIT
#include "tests/text_import/made_data.hpp"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <stdexcept>

#include <archive.h>
#include <archive_entry.h>
#include <unicode/unistr.h>

namespace textimport::made {
namespace {

void expect_ok(archive* const handle, int const result) {
  if (result != ARCHIVE_OK) {
    throw std::runtime_error(archive_error_string(handle));
  }
}

std::string write_archive(int (*const set_format)(archive*), int (*const add_filter)(archive*),
                          std::vector<std::pair<std::string, std::string>> const& members) {
  std::size_t room = 1 << 16;
  for (auto const& [name, content] : members) {
    room += 1024 + name.size() + 2 * content.size();
  }
  std::string bytes(room, '\0');
  std::size_t used = 0;
  std::unique_ptr<archive, int (*)(archive*)> const handle(archive_write_new(), archive_write_free);
  expect_ok(handle.get(), set_format(handle.get()));
  expect_ok(handle.get(), add_filter(handle.get()));
  archive_write_set_bytes_in_last_block(handle.get(), 1);
  expect_ok(handle.get(), archive_write_open_memory(handle.get(), bytes.data(), room, &used));
  for (auto const& [name, content] : members) {
    std::unique_ptr<archive_entry, void (*)(archive_entry*)> const entry(archive_entry_new(),
                                                                         archive_entry_free);
    archive_entry_set_pathname(entry.get(), name.c_str());
    archive_entry_set_filetype(entry.get(), name.ends_with('/') ? AE_IFDIR : AE_IFREG);
    archive_entry_set_perm(entry.get(), 0644);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(content.size()));
    expect_ok(handle.get(), archive_write_header(handle.get(), entry.get()));
    archive_write_data(handle.get(), content.data(), content.size());
  }
  expect_ok(handle.get(), archive_write_close(handle.get()));
  bytes.resize(used);
  return bytes;
}

}  // namespace

std::string packed(std::string const& format, std::string const& text) {
  if (format == "zip") {
    return zip({{"table.csv", text}});
  }
  if (format == "lz4" && text.empty()) {
    // The writer of libarchive 3.6.2 crashes here; these are the bytes of the program lz4 1.9.4.
    return {"\x04\x22\x4D\x18\x64\x40\xA7\0\0\0\0\x05\x5D\xCC\x02", 15};
  }
  auto* const filter = format == "gzip"    ? archive_write_add_filter_gzip
                       : format == "bzip2" ? archive_write_add_filter_bzip2
                       : format == "xz"    ? archive_write_add_filter_xz
                       : format == "zstd"  ? archive_write_add_filter_zstd
                                           : archive_write_add_filter_lz4;
  return write_archive(archive_write_set_format_raw, filter, {{"table.csv", text}});
}

std::string zip(std::vector<std::pair<std::string, std::string>> const& members) {
  return write_archive(archive_write_set_format_zip, archive_write_add_filter_none, members);
}

std::string table_of(std::size_t const bytes) {
  std::string text;
  for (std::size_t i = 1; true; ++i) {
    std::string const line = std::to_string(i) + "," + static_cast<char>('a' + i % 26) + "\n";
    if (text.size() + line.size() > bytes) {
      return text;
    }
    text += line;
  }
}

Outcome read_all(std::unique_ptr<ByteSource> bytes, OpenOptions const& options) {
  Outcome result;
  try {
    TextSource source = TextSource::open(std::move(bytes), "made", options);
    result.is_open = true;
    result.findings = source.findings();
    result.sample = source.sample().view();
    auto stream = source.stream();
    auto const take = [&] {
      result.whole.append(stream.data(), stream.buffered());
      stream.advance(stream.buffered());
      result.decoded = source.decoded_so_far();
      result.findings.warnings = source.findings().warnings;
    };
    stream.resizeInternalBuffer(997);
    try {
      while (!stream.at_end()) {
        stream.refill();
        take();
      }
    } catch (...) {
      take();
      throw;
    }
  } catch (ImportError const& error) {
    result.error = name_of(error.kind());
    result.message = error.message();
    result.error_byte = error.byte_offset().value_or(0);
  }
  return result;
}

Outcome read_all(std::string const& bytes, OpenOptions const& options) {
  return read_all(memory_bytes(bytes), options);
}

std::u16string utf16(std::string const& utf8) {
  icu::UnicodeString const text = icu::UnicodeString::fromUTF8(utf8);
  return {text.getBuffer(), static_cast<std::size_t>(text.length())};
}

}  // namespace textimport::made
