// SPDX-License-Identifier: MIT
//
// Line and block comments.
#include "text_format_detection/reading/comment_matcher_internal.hpp"

#include "text_format_detection/model/text_view_internal.hpp"

namespace textio::reading {

namespace {

/// Marker number `index`, or an empty string, which matches nowhere; so does a marker that holds
/// the end mark.
std::u16string marker(parser::options const& options, std::size_t const index) {
  if (index >= options.comment_style.size()) {
    return {};
  }
  std::u16string const& text = options.comment_style[index];
  return text.find(end_mark) == std::u16string::npos ? text : std::u16string{};
}

}  // namespace

CommentMatcher::CommentMatcher(parser::options const& options)
    : opening_(marker(options, 0)),
      closing_(marker(options, 1)),
      is_block_(options.comment_style.size() == 2),
      line_endings_(get_or_create_delim(options.line_endings)) {}

std::optional<CommentMatcher::Comment> CommentMatcher::match(std::u16string_view const text,
                                                             std::size_t const pos) const {
  if (opening_.empty() || !text.substr(pos).starts_with(opening_)) {
    return std::nullopt;
  }
  std::size_t const content = pos + opening_.size();
  if (!is_block_) {
    return Comment{find_line_ending(text, content), 1};
  }
  std::size_t const end = find_block_end(text, content);
  return Comment{end, 1 + count_line_endings(text, pos, end)};
}

std::size_t CommentMatcher::find_line_ending(std::u16string_view const text,
                                             std::size_t pos) const {
  while (!model::at_end(text, pos) && line_endings_->length_at(text, pos) == 0) {
    ++pos;
  }
  return pos;
}

std::size_t CommentMatcher::find_block_end(std::u16string_view const text, std::size_t pos) const {
  for (; !model::at_end(text, pos); ++pos) {
    if (!closing_.empty() && text.substr(pos).starts_with(closing_)) {
      return pos + closing_.size();
    }
  }
  return pos;
}

std::size_t CommentMatcher::count_line_endings(std::u16string_view const text, std::size_t pos,
                                               std::size_t const end) const {
  std::size_t count = 0;
  while (pos < end) {
    std::size_t const length = line_endings_->length_at(text, pos);
    bool const lies_inside = length != 0 && length <= end - pos;
    count += static_cast<std::size_t>(lies_inside);
    pos += length != 0 ? length : 1;
  }
  return count;
}

}  // namespace textio::reading
