// SPDX-License-Identifier: MIT
//
// Comments: does one begin here, where does it end, how many lines does it span?
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/delimiter_matcher.hpp"

namespace textio::reading {

/// Recognises the comments of a record of options.
class CommentMatcher {
 public:
  struct Comment {
    std::size_t end;        ///< the position behind the comment
    std::size_t num_lines;  ///< the lines that it spans, at least 1
  };

  explicit CommentMatcher(parser::options const& options);

  /// The comment that begins at `pos`, if any. A line comment ends before the next line ending; a
  /// block comment behind its closing marker or, if that never comes, at the end of the text.
  [[nodiscard]] std::optional<Comment> match(std::u16string_view text, std::size_t pos) const;

  [[nodiscard]] DelimiterMatcher const& line_endings() const noexcept { return *line_endings_; }

 private:
  [[nodiscard]] std::size_t find_line_ending(std::u16string_view text, std::size_t pos) const;
  [[nodiscard]] std::size_t find_block_end(std::u16string_view text, std::size_t pos) const;
  /// The line endings of the text that lie wholly between the positions.
  [[nodiscard]] std::size_t count_line_endings(std::u16string_view text, std::size_t pos,
                                               std::size_t end) const;

  std::u16string opening_;
  std::u16string closing_;
  bool is_block_;
  std::shared_ptr<DelimiterMatcher const> line_endings_;
};

}  // namespace textio::reading
