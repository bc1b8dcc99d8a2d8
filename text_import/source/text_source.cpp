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
std::unique_ptr<ByteSource> open_archive_of_member(std::string& path, std::string& member) {
  for (std::size_t colon = path.find(':', 1); colon != std::string::npos;
       colon = path.find(':', colon + 1)) {
    try {
      std::unique_ptr<ByteSource> bytes = open_bytes(path.substr(0, colon));
      member = path.substr(colon + 1);
      path.resize(colon);
      return bytes;
    } catch (ImportError const& error) {
      if (error.kind() != ImportErrorKind::FileNotFound &&
          error.kind() != ImportErrorKind::IsDirectory) {
        throw;
      }
    }
  }
  return nullptr;
}

/// Opens a file, or the archive in front of a member's name where there is no file of that name.
std::unique_ptr<ByteSource> open_file_or_archive(std::string& path, std::string& member) {
  try {
    return open_bytes(path);
  } catch (ImportError const& error) {
    if (error.kind() == ImportErrorKind::FileNotFound && member.empty()) {
      if (std::unique_ptr<ByteSource> bytes = open_archive_of_member(path, member)) {
        return bytes;
      }
    }
    throw;
  }
}

}  // namespace

TextSource::TextSource(std::shared_ptr<OpenedText> opened) noexcept : opened_(std::move(opened)) {}

TextSource::TextSource(TextSource&&) noexcept = default;
TextSource& TextSource::operator=(TextSource&&) noexcept = default;
TextSource::~TextSource() = default;

TextSource TextSource::open(std::string const& path, OpenOptions const& options) {
  std::string file = path;
  OpenOptions file_options = options;
  std::unique_ptr<ByteSource> bytes = open_file_or_archive(file, file_options.member);
  return open(std::move(bytes), file, file_options);
}

TextSource TextSource::open(std::unique_ptr<ByteSource> bytes, std::string const& path,
                            OpenOptions const& options) {
  return TextSource(std::make_shared<OpenedText>(std::move(bytes), path, options));
}

textio::Field TextSource::sample() const noexcept {
  return opened_->sample();
}

TextSample TextSource::text_sample() const {
  return {opened_->sample(), findings().goes_on, opened_->source_format()};
}

ostrel::io::text::stream::TextStream TextSource::stream() {
  if (std::exchange(is_streamed_, true)) {
    throw std::logic_error("TextSource: the text can be read once");
  }
  return ostrel::io::text::stream::TextStream(
      [opened = opened_](char16_t* const room, std::size_t const capacity) {
        return opened->deliver(room, capacity);
      });
}

TextFindings const& TextSource::findings() const noexcept {
  return opened_->findings();
}

DecodingCounts const& TextSource::decoded_so_far() const noexcept {
  return opened_->decoded();
}

std::string const& TextSource::path() const noexcept {
  return opened_->path();
}

}  // namespace textimport
