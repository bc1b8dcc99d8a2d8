// SPDX-License-Identifier: MIT
//
// The reading loop: record after record from the start of a text, until a limit or the end. Written
// once, over a scanner (what a record is) and a policy for comments.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "text_format_detection/model/errors.hpp"
#include "text_format_detection/model/text_view_internal.hpp"
#include "text_format_detection/reading/comment_matcher_internal.hpp"
#include "text_format_detection/reading/read_summary.hpp"
#include "text_format_detection/reading/record_store_internal.hpp"

namespace textio::reading {

/// When a loop stops, and whether it takes a sample rather than reads for real: then empty records
/// kept by the rule Read are stored but not counted, comment lines are stored as empty records so
/// that every line has one, and nothing is added behind the last line.
struct ReadLimits {
  std::size_t records;
  std::size_t lines;
  bool sampling;
};

/// A comment at the start of a record, and what follows it on its last line.
struct SkippedComment {
  std::size_t end;    ///< the position of the data behind it, or behind its line ending
  std::size_t lines;  ///< the lines that hold nothing but comment
  bool data_follows;  ///< data stands behind the comment, on its last line
};

/// No comment markers are given.
struct NoComments {
  template <class Scanner>
  [[nodiscard]] static std::optional<SkippedComment> skip(std::size_t /*start*/,
                                                          Scanner const& /*scanner*/) noexcept {
    return std::nullopt;
  }
};

/// Comments are recognised at the start of a record, behind its leading whitespace.
class SkipComments {
 public:
  explicit SkipComments(parser::options const& options)
      : matcher_(options), whitespace_(options.whitespace) {}

  /// The comment of the record at `start`.
  template <class Scanner>
  [[nodiscard]] std::optional<SkippedComment> skip(std::size_t const start,
                                                   Scanner const& scanner) {
    std::u16string_view const text = scanner.text();
    auto const comment = matcher_.match(text, content_start(start, scanner));
    if (!comment) {
      return std::nullopt;
    }
    std::size_t const behind =
        scanner.skip_ignored_delimiters(model::skip_members(text, comment->end, whitespace_));
    std::size_t const ending = matcher_.line_endings().length_at(text, behind);
    if (ending != 0 || model::at_end(text, behind)) {
      return SkippedComment{behind + ending, comment->num_lines, false};
    }
    return SkippedComment{behind, comment->num_lines - 1, true};
  }

 private:
  /// Where the content of the record at `start` begins. Where the whitespace holds the line ending,
  /// that is behind all the blank lines from here on; the next of them would skip the same
  /// whitespace again, so that the position reached is remembered.
  template <class Scanner>
  [[nodiscard]] std::size_t content_start(std::size_t const start, Scanner const& scanner) {
    if (start > known_whitespace_end_ || known_whitespace_end_ == 0) {
      known_whitespace_end_ = model::skip_members(scanner.text(), start, whitespace_);
      known_start_ = scanner.skip_ignored_delimiters(known_whitespace_end_);
    }
    return known_start_;
  }

  CommentMatcher matcher_;
  model::UnitSet whitespace_;
  // For every record that begins before or at the first, the second is where its content begins.
  std::size_t known_whitespace_end_ = 0;
  std::size_t known_start_ = 0;
};

/// Reads the records of one text into a store.
template <class Scanner, class Comments>
class ReadingLoop {
 public:
  ReadingLoop(parser::options const& options, Scanner& scanner, Comments comments,
              ReadLimits const& limits, RecordStore& store)
      : options_(options),
        scanner_(scanner),
        comments_(std::move(comments)),
        limits_(limits),
        store_(store),
        text_(scanner.text()) {}

  /// Throws the parser errors of the rules set to Error; the records before stay stored.
  ReadSummary run() {
    std::size_t const stored_before = store_.num_records();
    bool const goes_on = limits_.records > 0 && limits_.lines > 0 && read_to_end();
    if (goes_on && !limits_.sampling && options_.empty_lines == enums::EmptyLineRule::Read &&
        store_.ends_text) {
      store_.store_empty();
    }
    summary_.records_stored = store_.num_records() - stored_before;
    return summary_;
  }

 private:
  /// Reads until the text ends (true) or a limit is reached (false).
  bool read_to_end() {
    while (!model::at_end(text_, summary_.units_consumed)) {
      if (!read_line()) {
        return false;
      }
    }
    return true;
  }

  /// Reads one record, or a comment that fills its lines. Returns whether to go on.
  bool read_line() {
    if (auto const comment = comments_.skip(summary_.units_consumed, scanner_)) {
      summary_.units_consumed = comment->end;
      pass_comment_lines(comment->lines);
      if (summary_.lines_scanned > limits_.lines) {
        return false;
      }
      if (!comment->data_follows) {
        return true;
      }
    }
    scan_record();
    keep_record();
    ++summary_.lines_scanned;
    summary_.units_consumed += store_.occupied;
    bool const limit_reached =
        num_counted_ >= limits_.records || summary_.lines_scanned >= limits_.lines;
    return !limit_reached && store_.occupied > 0;
  }

  void pass_comment_lines(std::size_t const lines) {
    summary_.lines_scanned = model::saturated_sum(summary_.lines_scanned, lines);
    for (std::size_t i = 0; limits_.sampling && i < lines; ++i) {
      store_.store_empty();
    }
  }

  void scan_record() {
    try {
      scanner_.scan(summary_.units_consumed, store_);
    } catch (parser::exception::partial_field_error& error) {
      error.record = num_counted_;
      throw parser::exception::partial_field_error(error);
    }
  }

  void keep_record() {
    if (!store_.is_empty()) {
      store_.keep();
      ++num_counted_;
      return;
    }
    switch (options_.empty_lines) {
      case enums::EmptyLineRule::Read:
        store_.keep();
        num_counted_ += limits_.sampling ? 0U : 1U;
        return;
      case enums::EmptyLineRule::Error:
        throw parser::exception::empty_line_rule(num_counted_, 0, {}, {});
      case enums::EmptyLineRule::Skip:
        break;
    }
    store_.drop();
  }

  parser::options const& options_;
  Scanner& scanner_;
  Comments comments_;
  ReadLimits limits_;
  RecordStore& store_;
  std::u16string_view text_;
  ReadSummary summary_;
  std::size_t num_counted_ = 0;
};

/// Reads a text with the loop that the options ask for: comment-aware when they hold markers.
template <class Reader>
ReadSummary run_reading_loop(Reader const& reader, std::u16string_view const text,
                             ReadLimits const& limits, RecordStore& store) {
  parser::options const& options = reader.options();
  return with_scanner(reader, text, [&](auto scanner) {
    if (options.comment_style.empty()) {
      return ReadingLoop(options, scanner, NoComments{}, limits, store).run();
    }
    return ReadingLoop(options, scanner, SkipComments(options), limits, store).run();
  });
}

}  // namespace textio::reading
