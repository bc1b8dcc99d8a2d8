// SPDX-License-Identifier: MIT
//
// The head of the data is read and decoded as a whole, because the encoding is found out from all
// of it; what follows is decoded block by block when the stream asks for it. A failure behind text
// is kept until that text was delivered.
#include "text_import/source/opened_text_internal.hpp"

#include <algorithm>
#include <utility>

#include "text_import/source/compression/decompression_internal.hpp"
#include "text_import/source/encoding/binary_content_internal.hpp"
#include "text_import/source/encoding/unit_count_internal.hpp"

namespace textimport {
namespace {

/// Damage behind text that was delivered does not take that text away.
bool leaves_text_usable(ImportErrorKind const kind) {
  return kind == ImportErrorKind::DamagedCompression ||
         kind == ImportErrorKind::TruncatedCompression || kind == ImportErrorKind::WrongChecksum;
}

/// Whether the ending may be the start of a longer one.
bool may_go_on(std::u16string const& ending, std::vector<std::u16string> const& endings) {
  return std::ranges::any_of(endings, [&](std::u16string const& other) {
    return other.size() > ending.size() && other.starts_with(ending);
  });
}

/// The length of `text` up to and with its last line ending, 0 without any. One at the very end
/// that may go on is none.
std::size_t whole_lines(std::u16string_view const text,
                        std::vector<std::u16string> const& endings) {
  std::u16string last_units;
  for (std::u16string const& ending : endings) {
    last_units += ending.back();
  }
  for (std::size_t end = text.find_last_of(last_units) + 1; end > 0;
       end = text.substr(0, end - 1).find_last_of(last_units) + 1) {
    bool const is_last = std::ranges::any_of(endings, [&](std::u16string const& ending) {
      bool const is_whole = end < text.size() || !may_go_on(ending, endings);
      return is_whole && text.substr(0, end).ends_with(ending);
    });
    if (is_last) {
      return end;
    }
  }
  return 0;
}

LineEndingCounts count_line_endings(std::u16string_view const text) {
  auto const is_crlf = [](char16_t const unit, char16_t const next) {
    return unit == u'\r' && next == u'\n';
  };
  std::size_t const cr = count_unit(text, u'\r');
  std::size_t const crlf = cr == 0 ? 0 : count_units(text, is_crlf);
  return {count_unit(text, u'\n') - crlf, crlf, cr - crlf};
}

}  // namespace

OpenedText::OpenedText(std::unique_ptr<ByteSource> raw, std::string path,
                       OpenOptions const& options)
    : path_(std::move(path)), options_(options) {
  options_.sample_bytes = std::max<std::size_t>(options_.sample_bytes, 1);
  options_.block_bytes = std::max<std::size_t>(options_.block_bytes, 1);
  std::erase(options_.line_endings, std::u16string());
  DecompressedBytes opened = decompress(std::move(raw), path_, options_, findings_.warnings);
  bytes_ = std::move(opened.bytes);
  findings_.compression = std::move(opened.compression);
  findings_.member = std::move(opened.member);
  std::string head;
  read_head(head);
  refuse_binary_format(head, findings_.compression, path_);
  note_unseen_members();
  decode_head(head);
  cut_sample();
  findings_.line_endings = count_line_endings(sample());
  findings_.nuls = count_unit(sample(), u'\0');
  undelivered_ = head_text_;
}

/// Reads up to `capacity` bytes, valid until the next call; none at the end.
std::string_view OpenedText::read_block(std::size_t const capacity) {
  if (block_capacity_ < capacity) {
    block_ = std::make_unique_for_overwrite<char[]>(capacity);
    block_capacity_ = capacity;
  }
  std::size_t const length = bytes_->read(block_.get(), capacity);
  at_end_ = length == 0;
  return {block_.get(), length};
}

void OpenedText::read_head(std::string& head) {
  try {
    while (head.size() < options_.sample_bytes && !at_end_) {
      head += read_block(std::min(options_.block_bytes, options_.sample_bytes - head.size()));
    }
    if (!at_end_) {
      ahead_ = read_block(options_.block_bytes);
    }
  } catch (ImportError const& error) {
    note_failure(error, !head.empty());
  }
  findings_.bytes_read = head.size();
  findings_.goes_on = !at_end_;
}

void OpenedText::note_failure(ImportError const& error, bool const after_text) {
  if (!after_text || !leaves_text_usable(error.kind())) {
    throw;  // the error that is being handled
  }
  failure_ = std::current_exception();
  at_end_ = error.kind() == ImportErrorKind::WrongChecksum;  // the text itself is complete
  findings_.warnings.push_back(error.message());
}

void OpenedText::note_unseen_members() {
  bool const is_first_of_many = findings_.compression == "zip" && options_.member.empty();
  if (is_first_of_many && findings_.goes_on && !failure_) {
    findings_.warnings.emplace_back(
        "the first member of the archive is larger than the sample; whether others follow it was "
        "not looked at");
  }
}

void OpenedText::decode_head(std::string_view const head) {
  bool const is_given = !options_.encoding.empty();
  findings_.encoding = is_given ? given_encoding(options_.encoding, head, path_)
                                : find_encoding(head, !findings_.goes_on);
  std::size_t const mark_bytes = findings_.encoding.mark_bytes;
  decoder_.emplace(findings_.encoding.name, mark_bytes, options_.strict, path_);
  head_text_.reserve(head.size());
  decoder_->decode(head.substr(mark_bytes), !findings_.goes_on, head_text_);
  findings_.decoding = decoder_->counts();
  if (!is_given) {
    refuse_control_characters(head_text_, path_);
  }
}

void OpenedText::cut_sample() {
  sample_length_ = head_text_.size();
  if (findings_.goes_on) {
    std::size_t const length = whole_lines(head_text_, source_format().line_endings);
    findings_.no_line_end = length == 0;
    sample_length_ = length == 0 ? head_text_.size() : length;
  }
}

SourceFormat OpenedText::source_format() const {
  SourceFormat source;
  source.encoding = findings_.encoding.name;
  source.has_byte_order_mark = findings_.encoding.mark_bytes > 0;
  source.encoding_origin = options_.encoding.empty() ? Origin::Found : Origin::Given;
  source.compression = findings_.compression;
  source.member = findings_.member;
  if (!options_.line_endings.empty()) {
    source.line_endings = options_.line_endings;
    source.line_endings_origin = Origin::Given;
  }
  source.line_ending_counts = findings_.line_endings;
  return source;
}

std::size_t OpenedText::deliver(char16_t* const room, std::size_t const capacity) {
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

void OpenedText::decode_next_block() {
  block_text_.clear();
  try {
    std::string_view const block =
        ahead_.empty() ? read_block(options_.block_bytes) : std::exchange(ahead_, {});
    decoder_->decode(block, at_end_, block_text_);
  } catch (...) {
    failure_ = std::current_exception();
  }
  undelivered_ = block_text_;
}

}  // namespace textimport
