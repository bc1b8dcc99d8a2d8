// SPDX-License-Identifier: MIT
//
// The reading loop: record after record from the start of a text, until a limit or the end. Written
// once, over a scanner (what a record is) and a policy for comments.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "text_format_detection/model/errors.hpp"
#include "text_format_detection/model/text_view_internal.hpp"
#include "text_format_detection/reading/comment_matcher_internal.hpp"
#include "text_format_detection/reading/read_records.hpp"
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
  std::size_t units;  ///< code units up to the data behind it, or through its line ending
  std::size_t lines;  ///< the lines that hold nothing but comment
  bool data_follows;  ///< data stands behind the comment, on its last line
};

/// No comment markers are given.
struct NoComments {
  template <class Scanner>
  [[nodiscard]] static std::optional<SkippedComment> skip(std::u16string_view /*text*/,
                                                          std::size_t /*offset*/,
                                                          Scanner const& /*scanner*/) noexcept {
    return std::nullopt;
  }
};

/// Comments are recognised at the start of a record, behind its leading whitespace.
class SkipComments {
 public:
  explicit SkipComments(parser::options const& options)
      : matcher_(options), whitespace_(options.whitespace) {}

  /// The comment at the start of `text`, which begins `offset` units into the text being read.
  template <class Scanner>
  [[nodiscard]] std::optional<SkippedComment> skip(std::u16string_view const text,
                                                   std::size_t const offset,
                                                   Scanner const& scanner) {
    auto const comment = matcher_.match(text, record_start(text, offset, scanner));
    if (!comment) {
      return std::nullopt;
    }
    std::size_t const behind =
        scanner.skip_ignored_delimiters(text, model::skip_members(text, comment->end, whitespace_));
    std::size_t const ending = matcher_.line_endings().length_at(text, behind);
    if (ending != 0 || model::at_end(text, behind)) {
      return SkippedComment{behind + ending, comment->num_lines, false};
    }
    return SkippedComment{behind, comment->num_lines - 1, true};
  }

 private:
  /// Where the content of the record at the start of `text` begins. Where the whitespace holds the
  /// line ending, that is behind all the blank lines from here on; the next of them would skip the
  /// same whitespace again, so that the position reached is remembered.
  template <class Scanner>
  [[nodiscard]] std::size_t record_start(std::u16string_view const text, std::size_t const offset,
                                         Scanner const& scanner) {
    if (offset > known_whitespace_end_ || known_whitespace_end_ == 0) {
      std::size_t const whitespace_end = model::skip_members(text, 0, whitespace_);
      known_whitespace_end_ = offset + whitespace_end;
      known_start_ = offset + scanner.skip_ignored_delimiters(text, whitespace_end);
    }
    return known_start_ - offset;
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
  ReadingLoop(parser::options const& options, Scanner const& scanner, Comments comments,
              ReadLimits const& limits, RecordStore& store)
      : options_(options),
        scanner_(scanner),
        comments_(std::move(comments)),
        limits_(limits),
        store_(store),
        whitespace_(options.whitespace) {}

  /// Throws the parser errors of the rules set to Error; the records before stay stored.
  ReadSummary run(std::u16string_view const text) {
    text_ = text;
    std::size_t const stored_before = store_.num_records();
    bool const goes_on = limits_.records > 0 && limits_.lines > 0 && read_to_end();
    if (goes_on && !limits_.sampling && options_.empty_lines == enums::EmptyLineRule::Read &&
        scan_.ends_text) {
      store_.store_empty();
    }
    summary_.records_stored = store_.num_records() - stored_before;
    return summary_;
  }

 private:
  /// Reads until the text ends (true) or a limit is reached (false).
  bool read_to_end() {
    while (!model::at_end(text_, 0)) {
      if (!read_line()) {
        return false;
      }
    }
    return true;
  }

  /// Reads one record, or a comment that fills its lines. Returns whether to go on.
  bool read_line() {
    if (auto const comment = comments_.skip(text_, summary_.units_consumed, scanner_)) {
      consume(comment->units);
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
    consume(scan_.occupied);
    bool const limit_reached =
        num_counted_ >= limits_.records || summary_.lines_scanned >= limits_.lines;
    return !limit_reached && scan_.occupied > 0;
  }

  void pass_comment_lines(std::size_t const lines) {
    summary_.lines_scanned = model::saturated_sum(summary_.lines_scanned, lines);
    for (std::size_t i = 0; limits_.sampling && i < lines; ++i) {
      store_.store_empty();
    }
  }

  void scan_record() {
    try {
      scanner_.scan(text_, scan_);
    } catch (parser::exception::partial_field_error& error) {
      error.record = num_counted_;
      throw parser::exception::partial_field_error(error);
    }
  }

  void keep_record() {
    if (!is_empty_record()) {
      store_.store(text_, scan_);
      ++num_counted_;
      return;
    }
    switch (options_.empty_lines) {
      case enums::EmptyLineRule::Skip:
        break;
      case enums::EmptyLineRule::Read:
        store_.store(text_, scan_);
        num_counted_ += limits_.sampling ? 0U : 1U;
        break;
      case enums::EmptyLineRule::Error:
        throw parser::exception::empty_line_rule(num_counted_, 0, {}, {});
    }
  }

  /// Whether nothing but whitespace stands before the end of the record's last field.
  [[nodiscard]] bool is_empty_record() const {
    return scan_.status == RecordScan::Status::Whole &&
           model::consists_of(text_.substr(0, scan_.last_end()), whitespace_);
  }

  void consume(std::size_t const units) {
    text_.remove_prefix(std::min(units, text_.size()));
    summary_.units_consumed = model::saturated_sum(summary_.units_consumed, units);
  }

  parser::options const& options_;
  Scanner const& scanner_;
  Comments comments_;
  ReadLimits limits_;
  RecordStore& store_;
  model::UnitSet whitespace_;
  std::u16string_view text_;
  RecordScan scan_;
  ReadSummary summary_;
  std::size_t num_counted_ = 0;
};

/// Reads `text` with the loop that the options ask for: comment-aware when they hold markers.
template <class Reader>
ReadSummary run_reading_loop(Reader const& reader, std::u16string_view const text,
                             ReadLimits const& limits, RecordStore& store) {
  parser::options const& options = reader.options();
  return with_scanner(reader, [&](auto const& scanner) {
    if (options.comment_style.empty()) {
      return ReadingLoop(options, scanner, NoComments{}, limits, store).run(text);
    }
    return ReadingLoop(options, scanner, SkipComments(options), limits, store).run(text);
  });
}

}  // namespace textio::reading
