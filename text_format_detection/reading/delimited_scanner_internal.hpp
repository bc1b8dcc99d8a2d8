// SPDX-License-Identifier: MIT
//
// The scan of one delimited record. One scanner, three treatments of consecutive delimiters; it is
// compiled for each kind of matcher, so that no unit of the text asks which kind it is.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <variant>

#include "text_format_detection/model/errors.hpp"
#include "text_format_detection/model/text_view_internal.hpp"
#include "text_format_detection/model/unit_search_internal.hpp"
#include "text_format_detection/platform/record_readers.hpp"
#include "text_format_detection/reading/record_store_internal.hpp"

namespace textio::reading {

/// The position behind every delimiter that stands at `pos`, one after another.
template <class Delimiters>
[[nodiscard]] std::size_t skip_delimiters(std::u16string_view const text, std::size_t pos,
                                          Delimiters const& delimiters) {
  while (std::size_t const length = delimiters.length_at(text, pos)) {
    pos += length;
  }
  return pos;
}

/// Treats the empty fields at the end of a record by the trailing-delimiters rule.
/// Throws trailing_delimiters_error under the rule Error.
void apply_trailing_rule(enums::TrailingDelimitersRule rule, RecordStore& record);

/// `Delimiters` and `LineEndings` are modes of DelimiterMatcher.
template <enums::ConsecutiveDelimitersRule Rule, class Delimiters, class LineEndings>
class DelimitedScanner {
 public:
  DelimitedScanner(parser::DelimitedRecordReader const& reader, Delimiters const& delimiters,
                   LineEndings const& line_endings, std::u16string_view const text)
      : reader_(reader),
        delimiters_(delimiters),
        line_endings_(line_endings),
        text_(text),
        quote_(reader.quote_character()),
        quotes_(text, std::u16string_view(&quote_, 1)),
        stops_(text, reader.stop_characters()) {}

  [[nodiscard]] std::u16string_view text() const noexcept { return text_; }

  /// Scans the record at `start`. Throws the errors of the three delimiter rules.
  void scan(std::size_t const start, RecordStore& record) {
    record.begin(start);
    TrailingRun run;
    std::size_t pos = skip_leading(start);
    std::size_t ending = line_endings_.length_at(text_, pos);
    bool goes_on = ending == 0 && !model::at_end(text_, pos);
    while (goes_on) {
      FieldEnd const field = find_field_end(pos);
      goes_on = field.delimiter_length != 0;
      std::size_t const next =
          goes_on ? after_delimiter(field, record.num_fields(), run) : field.end;
      record.add_field(pos, field.end);
      pos = next;
      ending = field.line_ending_length;
    }
    apply_trailing_rule(reader_.options().trailing_delimiters_rule, record);
    if (run.pending && record.num_fields() > run.first) {
      throw parser::exception::consecutive_delimiters_error(0, 0, {}, {});
    }
    record.occupied = pos + ending - start;
    record.ends_text = ending != 0 && model::at_end(text_, pos + ending);
  }

  /// Where the content of a record begins: behind `pos` and the delimiters to be ignored there.
  [[nodiscard]] std::size_t skip_ignored_delimiters(std::size_t const pos) const {
    bool const ignored =
        reader_.options().leading_delimiters_rule == enums::LeadingDelimitersRule::Ignore;
    return ignored ? skip_delimiters(text_, pos, delimiters_) : pos;
  }

 private:
  struct FieldEnd {
    std::size_t end;
    std::size_t delimiter_length;  // both 0: the text ends here
    std::size_t line_ending_length;
  };

  /// A run of delimiters that is an error unless the record ends with it; see
  /// handle_consecutive_delimiters.
  struct TrailingRun {
    bool pending = false;
    std::size_t first = unknown_count;
  };

  [[nodiscard]] std::size_t skip_leading(std::size_t const start) const {
    bool const forbidden =
        reader_.options().leading_delimiters_rule == enums::LeadingDelimitersRule::Error;
    if (forbidden && delimiters_.length_at(text_, start) != 0) {
      throw parser::exception::leading_delimiters_error(0, 0, {}, {});
    }
    return skip_ignored_delimiters(start);
  }

  /// Whether a quoted field begins at `pos`. A string that is a quote and a line ending is the
  /// latter; without quotes, `quote_` is the end mark.
  [[nodiscard]] bool is_opening_quote(std::size_t const pos) const {
    return model::unit_at(text_, pos) == quote_ && quote_ != end_mark &&
           line_endings_.length_at(text_, pos) == 0;
  }

  /// The end of the field that begins at `pos`. A line ending is tested before a delimiter, so
  /// that a string which is both ends the record.
  [[nodiscard]] FieldEnd find_field_end(std::size_t pos) {
    if (is_opening_quote(pos)) {
      pos = skip_quoted(pos);
    }
    std::u16string_view const text = text_;  // not read anew behind every call of the search
    for (;; ++pos) {
      pos = stops_.find(pos);
      if (std::size_t const length = line_endings_.length_at(text, pos)) {
        return {pos, 0, length};
      }
      if (std::size_t const length = delimiters_.length_at(text, pos)) {
        return {pos, length, 0};
      }
      if (model::at_end(text, pos)) {
        return {pos, 0, 0};
      }
    }
  }

  /// The position behind the quoted text that begins at `pos`; a doubled quote goes on with it.
  /// The end of the text when a quote never closes.
  [[nodiscard]] std::size_t skip_quoted(std::size_t pos) {
    do {
      pos = quotes_.find(pos + 1);
      if (model::at_end(text_, pos)) {
        return pos;
      }
      ++pos;
    } while (model::unit_at(text_, pos) == quote_);
    return pos;
  }

  /// The start of what follows the delimiter behind field number `field_index`.
  [[nodiscard]] std::size_t after_delimiter(FieldEnd const& field, std::size_t const field_index,
                                            TrailingRun& run) const {
    std::size_t pos = field.end + field.delimiter_length;
    if constexpr (Rule == enums::ConsecutiveDelimitersRule::Join) {
      pos = skip_delimiters(text_, pos, delimiters_);
    } else if constexpr (Rule == enums::ConsecutiveDelimitersRule::Error) {
      reader_.template handle_consecutive_delimiters<Rule>(Field(text_), field_index, pos,
                                                           run.pending, run.first);
    }
    return pos;
  }

  parser::DelimitedRecordReader const& reader_;
  Delimiters const& delimiters_;
  LineEndings const& line_endings_;
  std::u16string_view text_;
  char16_t quote_;
  model::UnitSearch quotes_;
  model::UnitSearch stops_;
};

/// Calls `use` with a scanner of the text, for the reader's matchers and its consecutive-delimiters
/// rule.
template <class Use>
auto with_scanner(parser::DelimitedRecordReader const& reader, std::u16string_view const text,
                  Use use) {
  return std::visit(
      [&](auto const& delimiters, auto const& line_endings) {
        using enums::ConsecutiveDelimitersRule;
        using Delimiters = std::decay_t<decltype(delimiters)>;
        using LineEndings = std::decay_t<decltype(line_endings)>;
        switch (reader.options().consecutive_delimiters_rule) {
          case ConsecutiveDelimitersRule::Join:
            return use(DelimitedScanner<ConsecutiveDelimitersRule::Join, Delimiters, LineEndings>(
                reader, delimiters, line_endings, text));
          case ConsecutiveDelimitersRule::Error:
            return use(DelimitedScanner<ConsecutiveDelimitersRule::Error, Delimiters, LineEndings>(
                reader, delimiters, line_endings, text));
          case ConsecutiveDelimitersRule::Split:
          default:
            return use(DelimitedScanner<ConsecutiveDelimitersRule::Split, Delimiters, LineEndings>(
                reader, delimiters, line_endings, text));
        }
      },
      reader.delimiters().mode(), reader.line_endings().mode());
}

}  // namespace textio::reading
