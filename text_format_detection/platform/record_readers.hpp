// SPDX-License-Identifier: MIT
//
// The three record readers: what each has to know to cut a text into records, built once from a
// record of options. The scans themselves are in reading/.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "text_format_detection/export.hpp"
#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/model/field.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/delimiter_matcher.hpp"

namespace textio::parser {

/// Cuts records at delimiters, heeding quotes. Refers to the options, which must outlive it.
class TFD_API DelimitedRecordReader {
 public:
  explicit DelimitedRecordReader(parser::options const& options);
  explicit DelimitedRecordReader(parser::options const&&) = delete;

  [[nodiscard]] parser::options const& options() const noexcept { return *options_; }

  /// The quote character, or `end_mark` when no field is quoted.
  [[nodiscard]] char16_t quote_character() const noexcept { return quote_character_; }

  [[nodiscard]] DelimiterMatcher const& delimiters() const noexcept { return *delimiters_; }

  [[nodiscard]] DelimiterMatcher const& line_endings() const noexcept { return *line_endings_; }

  /// The code units at which a field may end: the first units of delimiters and line endings.
  [[nodiscard]] std::u16string const& stop_characters() const noexcept { return stop_characters_; }

  /// The position at which a record's content begins: behind whitespace from `pos` on and then,
  /// when leading delimiters are ignored, behind delimiters.
  template <class Text>
  [[nodiscard]] std::size_t find_line_start(Text const& text, std::size_t pos) const;

  /// What follows a delimiter that ended field `field_index`, for one consecutive-delimiters rule;
  /// made for the rule Error only. `pos` is the position behind that delimiter.
  ///
  /// When trailing delimiters are ignored, skips the run of delimiters at `pos`; if there is one,
  /// sets `pending` and lowers `first_trailing` to the number of fields before the run: the run is
  /// an error only if it turns out not to be trailing. Otherwise throws
  /// consecutive_delimiters_error when a delimiter stands at `pos`.
  template <enums::ConsecutiveDelimitersRule Rule, class Text>
  void handle_consecutive_delimiters(Text const& text, std::size_t field_index, std::size_t& pos,
                                     bool& pending, std::size_t& first_trailing) const;

 private:
  parser::options const* options_;
  char16_t quote_character_;
  std::shared_ptr<DelimiterMatcher const> delimiters_;
  std::shared_ptr<DelimiterMatcher const> line_endings_;
  std::u16string stop_characters_;
};

extern template TFD_API std::size_t DelimitedRecordReader::find_line_start<Field>(
    Field const& text, std::size_t pos) const;
extern template TFD_API void DelimitedRecordReader::handle_consecutive_delimiters<
    enums::ConsecutiveDelimitersRule::Error, Field>(Field const& text, std::size_t field_index,
                                                    std::size_t& pos, bool& pending,
                                                    std::size_t& first_trailing) const;

/// Cuts records at column widths. Refers to the options, which must outlive it.
class TFD_API FixedWidthRecordReader {
 public:
  explicit FixedWidthRecordReader(parser::options const& options);
  explicit FixedWidthRecordReader(parser::options const&&) = delete;

  [[nodiscard]] parser::options const& options() const noexcept { return *options_; }

  [[nodiscard]] DelimiterMatcher const& line_endings() const noexcept { return *line_endings_; }

  /// The code units at which a line may end: the first units of the line endings.
  [[nodiscard]] std::u16string const& stop_characters() const noexcept { return stop_characters_; }

 private:
  parser::options const* options_;
  std::shared_ptr<DelimiterMatcher const> line_endings_;
  std::u16string stop_characters_;
};

/// Takes each line as one field. Refers to the options, which must outlive it.
class TFD_API LineRecordReader {
 public:
  explicit LineRecordReader(parser::options const& options);
  explicit LineRecordReader(parser::options const&&) = delete;

  [[nodiscard]] parser::options const& options() const noexcept { return *options_; }

  /// Strings that end a value without being part of what the record occupies: none.
  [[nodiscard]] DelimiterMatcher const& value_ends() const noexcept { return *value_ends_; }

  [[nodiscard]] DelimiterMatcher const& line_endings() const noexcept { return *line_endings_; }

  /// The code units at which a line may end: the first units of the line endings.
  [[nodiscard]] std::u16string const& stop_characters() const noexcept { return stop_characters_; }

  /// Whether an empty line is a record with one empty field; it is not.
  [[nodiscard]] bool reads_empty_values() const noexcept { return reads_empty_values_; }

 private:
  parser::options const* options_;
  std::shared_ptr<DelimiterMatcher const> value_ends_;
  std::shared_ptr<DelimiterMatcher const> line_endings_;
  std::u16string stop_characters_;
  bool reads_empty_values_ = false;
};

}  // namespace textio::parser
