// SPDX-License-Identifier: MIT
#include "text_import/source/text_source.hpp"

#include <stdexcept>
#include <utility>

#include "text_import/import_error.hpp"
#include "text_import/source/opened_text_internal.hpp"

namespace textimport {
namespace {

/// What stands behind a colon is the name of a member, if what stands in front of it is a file.
/// Sets `path` and `member` to the two parts, at the first such colon; null without any.
std::unique_ptr<byte_source> open_archive_of_member(std::string& path, std::string& member) {
  for (std::size_t colon = path.find(':', 1); colon != std::string::npos;
       colon = path.find(':', colon + 1)) {
    try {
      std::unique_ptr<byte_source> bytes = open_bytes(path.substr(0, colon));
      member = path.substr(colon + 1);
      path.resize(colon);
      return bytes;
    } catch (import_error const& error) {
      if (error.kind() != import_error_kind::FileNotFound &&
          error.kind() != import_error_kind::IsDirectory) {
        throw;
      }
    }
  }
  return nullptr;
}

/// Opens a file, or the archive in front of a member's name where there is no file of that name.
std::unique_ptr<byte_source> open_file_or_archive(std::string& path, std::string& member) {
  try {
    return open_bytes(path);
  } catch (import_error const& error) {
    if (error.kind() == import_error_kind::FileNotFound && member.empty()) {
      if (std::unique_ptr<byte_source> bytes = open_archive_of_member(path, member)) {
        return bytes;
      }
    }
    throw;
  }
}

}  // namespace

text_source::text_source(std::shared_ptr<opened_text> opened) noexcept
    : opened_(std::move(opened)) {}

text_source::text_source(text_source&&) noexcept = default;
text_source& text_source::operator=(text_source&&) noexcept = default;
text_source::~text_source() = default;

text_source text_source::open(std::string const& path, open_options const& options) {
  std::string file = path;
  open_options file_options = options;
  std::unique_ptr<byte_source> bytes = open_file_or_archive(file, file_options.member);
  return open(std::move(bytes), file, file_options);
}

text_source text_source::open(std::unique_ptr<byte_source> bytes, std::string const& path,
                              open_options const& options) {
  return text_source(std::make_shared<opened_text>(std::move(bytes), path, options));
}

textio::Field text_source::sample() const noexcept {
  return opened_->sample();
}

ostrel::io::text::stream::TextStream text_source::stream() {
  if (std::exchange(is_streamed_, true)) {
    throw std::logic_error("text_source: the text can be read once");
  }
  return ostrel::io::text::stream::TextStream(
      [opened = opened_](char16_t* const room, std::size_t const capacity) {
        return opened->deliver(room, capacity);
      });
}

text_findings const& text_source::findings() const noexcept {
  return opened_->findings();
}

decoding_counts const& text_source::decoded_so_far() const noexcept {
  return opened_->decoded();
}

std::string const& text_source::path() const noexcept {
  return opened_->path();
}

}  // namespace textimport
