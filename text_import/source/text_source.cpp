// SPDX-License-Identifier: MIT
//
// The head of the data is read and decoded as a whole, because the encoding is found out from all
// of it; what follows is decoded block by block when the stream asks for it. A failure behind text
// is kept until that text was delivered.
#include "text_import/source/text_source.hpp"

#include <algorithm>
#include <exception>
#include <optional>
#include <stdexcept>
#include <utility>

#include "text_import/import_error.hpp"
#include "text_import/source/binary_content_internal.hpp"
#include "text_import/source/decoder_internal.hpp"
#include "text_import/source/decompression_internal.hpp"

namespace textimport {
namespace {

/// Damage behind text that was delivered does not take that text away.
bool leaves_text_usable(import_error_kind const kind) {
  return kind == import_error_kind::DamagedCompression ||
         kind == import_error_kind::TruncatedCompression ||
         kind == import_error_kind::WrongChecksum;
}

/// Appends up to `capacity` bytes of `source` to `bytes` and returns how many; none when it throws.
std::size_t append_bytes(byte_source& source, std::size_t const capacity, std::string& bytes) {
  std::size_t const start = bytes.size();
  bytes.resize(start + capacity);
  try {
    bytes.resize(start + source.read(bytes.data() + start, capacity));
  } catch (...) {
    bytes.resize(start);
    throw;
  }
  return bytes.size() - start;
}

/// The length of `text` up to and with its last line ending, 0 without any. A CR at the very end
/// is none: an LF may follow.
std::size_t whole_lines(std::u16string_view const text) {
  if (text.empty()) {
    return 0;
  }
  std::size_t const searched = text.back() == u'\r' ? text.size() - 1 : text.size();
  return text.substr(0, searched).find_last_of(u"\r\n") + 1;
}

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

void count_characters(std::u16string_view const text, text_findings& findings) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] > u'\r') {
      continue;
    }
    if (text[i] == u'\0') {
      ++findings.nuls;
    } else if (text[i] == u'\n') {
      ++findings.line_endings.lf;
    } else if (text.substr(i, 2) == u"\r\n") {
      ++findings.line_endings.crlf;
      ++i;
    } else if (text[i] == u'\r') {
      ++findings.line_endings.cr;
    }
  }
}

}  // namespace

struct text_source::state {
  state(std::string name, open_options const& given) : path(std::move(name)), options(given) {
    options.sample_bytes = std::max<std::size_t>(options.sample_bytes, 1);
    options.block_bytes = std::max<std::size_t>(options.block_bytes, 1);
  }

  void open(std::unique_ptr<byte_source> raw);
  std::size_t deliver(char16_t* room, std::size_t capacity);

  std::unique_ptr<byte_source> bytes;
  std::string path;
  open_options options;
  text_findings findings;
  std::optional<decoder> decoding;
  std::u16string head_text;  // the sample and the begun line behind it
  std::size_t sample_length = 0;
  bool is_streamed = false;

 private:
  void read_head(std::string& head);
  void note_failure(import_error const& error, bool after_text);
  void find_encoding_of(std::string_view head);
  void cut_sample();
  void decode_next_block();

  std::string ahead_;  // a block that was read, but not decoded yet
  std::u16string block_text_;
  std::u16string_view undelivered_;
  std::exception_ptr failure_;
  bool at_end_ = false;
};

void text_source::state::open(std::unique_ptr<byte_source> raw) {
  decompressed_bytes opened = decompress(std::move(raw), path, options, findings.warnings);
  bytes = std::move(opened.bytes);
  findings.compression = std::move(opened.compression);
  findings.member = std::move(opened.member);
  std::string head;
  read_head(head);
  refuse_binary_format(head, findings.compression, path);
  if (findings.goes_on && findings.compression == "zip" && options.member.empty() && !failure_) {
    findings.warnings.emplace_back(
        "the first member of the archive is larger than the sample; whether others follow it was "
        "not looked at");
  }
  find_encoding_of(head);
  decoding.emplace(findings.encoding.name, findings.encoding.mark_bytes, options.strict, path);
  head_text.reserve(head.size());
  decoding->decode(std::string_view(head).substr(findings.encoding.mark_bytes), !findings.goes_on,
                   head_text);
  findings.decoding = decoding->counts();
  if (options.encoding.empty()) {
    refuse_control_characters(head_text, path);
  }
  cut_sample();
  count_characters({head_text.data(), sample_length}, findings);
  undelivered_ = head_text;
}

void text_source::state::read_head(std::string& head) {
  try {
    while (head.size() < options.sample_bytes && !at_end_) {
      std::size_t const room = std::min(options.block_bytes, options.sample_bytes - head.size());
      at_end_ = append_bytes(*bytes, room, head) == 0;
    }
    if (!at_end_) {
      at_end_ = append_bytes(*bytes, options.block_bytes, ahead_) == 0;
    }
  } catch (import_error const& error) {
    note_failure(error, !head.empty());
  }
  findings.bytes_read = head.size();
  findings.goes_on = !at_end_;
}

void text_source::state::note_failure(import_error const& error, bool const after_text) {
  if (!after_text || !leaves_text_usable(error.kind())) {
    throw;  // the error that is being handled
  }
  failure_ = std::current_exception();
  at_end_ = error.kind() == import_error_kind::WrongChecksum;  // the text itself is complete
  findings.warnings.push_back(error.message());
}

void text_source::state::find_encoding_of(std::string_view const head) {
  findings.encoding = options.encoding.empty() ? find_encoding(head, !findings.goes_on)
                                               : given_encoding(options.encoding, head, path);
}

void text_source::state::cut_sample() {
  sample_length = head_text.size();
  if (findings.goes_on) {
    std::size_t const length = whole_lines(head_text);
    findings.no_line_end = length == 0;
    sample_length = length == 0 ? head_text.size() : length;
  }
}

std::size_t text_source::state::deliver(char16_t* const room, std::size_t const capacity) {
  while (undelivered_.empty()) {
    if (failure_) {
      std::rethrow_exception(failure_);
    }
    if (at_end_) {
      return 0;
    }
    decode_next_block();
  }
  std::size_t const delivered = undelivered_.copy(room, capacity);
  undelivered_.remove_prefix(delivered);
  return delivered;
}

void text_source::state::decode_next_block() {
  block_text_.clear();
  try {
    if (ahead_.empty()) {
      at_end_ = append_bytes(*bytes, options.block_bytes, ahead_) == 0;
    }
    std::string const block = std::exchange(ahead_, {});
    decoding->decode(block, at_end_, block_text_);
  } catch (...) {
    failure_ = std::current_exception();
  }
  undelivered_ = block_text_;
}

text_source::text_source(std::shared_ptr<state> opened) noexcept : state_(std::move(opened)) {}

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
  auto opened = std::make_shared<state>(path, options);
  opened->open(std::move(bytes));
  return text_source(std::move(opened));
}

textio::Field text_source::sample() const noexcept {
  return {state_->head_text.data(), state_->sample_length};
}

ostrel::io::text::stream::TextStream text_source::stream() {
  if (std::exchange(state_->is_streamed, true)) {
    throw std::logic_error("text_source: the text can be read once");
  }
  return ostrel::io::text::stream::TextStream(
      [opened = state_](char16_t* const room, std::size_t const capacity) {
        return opened->deliver(room, capacity);
      });
}

text_findings const& text_source::findings() const noexcept {
  return state_->findings;
}

decoding_counts const& text_source::decoded_so_far() const noexcept {
  return state_->decoding->counts();
}

std::string const& text_source::path() const noexcept {
  return state_->path;
}

}  // namespace textimport
