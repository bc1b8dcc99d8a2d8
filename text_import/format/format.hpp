// SPDX-License-Identifier: MIT
//
// The answer about a file: everything that a stranger needs in order to read it right with a reader
// of his own. Plain data: copyable, comparable, without views into a text. The analysis makes it;
// whoever reads, converts, checks, prints or binds takes it and never asks how it came about.
//
// Texts are UTF-16, as the engine reads them; lines are counted from 0; a character of 0 stands
// for none.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "text_format_detection/model/enums.hpp"
#include "text_import/format/column.hpp"
#include "text_import/format/origin.hpp"

namespace textimport {

/// How a text is laid out.
enum class Layout : std::uint8_t {
  Delimited,
  SpaceAligned,  ///< runs of blanks line the columns up
  FixedWidth,
  Lines,  ///< each line is one value: prose, logs, a list
};

/// Line endings by kind. A CR LF is one of its own kind and not counted as CR or LF.
struct LineEndingCounts {
  std::uint64_t lf = 0;
  std::uint64_t crlf = 0;
  std::uint64_t cr = 0;

  friend bool operator==(LineEndingCounts const&, LineEndingCounts const&) = default;
};

/// From bytes to text.
struct SourceFormat {
  /// "UTF-8", "UTF-16LE", "windows-1252" ...; empty for a text that never was bytes.
  std::string encoding;
  bool has_byte_order_mark = false;
  Origin encoding_origin = Origin::Default;
  /// "none", "gzip", "bzip2", "xz", "zstd", "lz4" or "zip".
  std::string compression = "none";
  /// The name of the archive's member, as its bytes stand in the archive; empty without archive.
  std::string member;
  /// What ends a line: the first that matches does, so "\r\n" stands before "\r".
  std::vector<std::u16string> line_endings{u"\r\n", u"\n", u"\r"};
  Origin line_endings_origin = Origin::Default;
  /// Counted in the sample.
  LineEndingCounts line_ending_counts;

  friend bool operator==(SourceFormat const&, SourceFormat const&) = default;
};

/// How a line becomes fields.
struct LayoutFormat {
  Layout layout = Layout::Lines;
  Origin origin = Origin::Found;
  /// Delimited texts: each of one or more code units; where several match, the first wins.
  std::vector<std::u16string> delimiters;
  Origin delimiters_origin = Origin::Found;
  /// Blanks beside a delimiter do not belong to the values.
  bool has_blanks_around_delimiters = false;
  /// Fixed-width texts: the widths of the columns, left to right, in UTF-16 code units.
  std::vector<std::size_t> widths;
  Origin widths_origin = Origin::Found;
  /// The set of code units that count as blanks.
  std::u16string whitespace{u" \t"};

  textio::enums::ConsecutiveDelimitersRule consecutive_delimiters =
      textio::enums::ConsecutiveDelimitersRule::Split;
  textio::enums::LeadingDelimitersRule leading_delimiters =
      textio::enums::LeadingDelimitersRule::Keep;
  textio::enums::TrailingDelimitersRule trailing_delimiters =
      textio::enums::TrailingDelimitersRule::Keep;
  textio::enums::EmptyLineRule empty_lines = textio::enums::EmptyLineRule::Skip;
  textio::enums::PartialFieldRule partial_fields = textio::enums::PartialFieldRule::Keep;

  friend bool operator==(LayoutFormat const&, LayoutFormat const&) = default;
};

/// How a delimiter or a quote gets into a value.
enum class QuoteEscape : std::uint8_t {
  Doubled,    ///< two quotes stand for one
  Character,  ///< behind the escape character nothing has its special meaning
  None,       ///< a quote inside ends the value
};

struct QuotingFormat {
  char16_t quote = u'"';  ///< 0: no field is quoted
  QuoteEscape escape_kind = QuoteEscape::Doubled;
  char16_t escape = 0;         ///< of QuoteEscape::Character
  bool behind_blanks = false;  ///< blanks may stand between a delimiter and the quote
  Origin origin = Origin::Default;

  friend bool operator==(QuotingFormat const&, QuotingFormat const&) = default;
};

struct CommentFormat {
  /// None; one: it comments out the rest of the line; two: the marks around a comment.
  std::vector<std::u16string> markers;
  bool between_data = false;  ///< comment lines stand between lines of data
  bool at_line_ends = false;  ///< a marker behind data comments out the rest of the line
  Origin origin = Origin::Default;

  friend bool operator==(CommentFormat const&, CommentFormat const&) = default;
};

/// How numbers and missing values are written where a column says nothing else.
struct MarkFormat {
  char16_t decimal_mark = u'.';  ///< 0: numbers have no decimals
  Origin decimal_mark_origin = Origin::Default;
  char16_t thousands_mark = 0;
  Origin thousands_mark_origin = Origin::Default;
  /// Words that stand for a missing value in every column, compared exactly.
  std::vector<std::u16string> missing_words;
  Origin missing_words_origin = Origin::Default;

  friend bool operator==(MarkFormat const&, MarkFormat const&) = default;
};

/// Where the data begin, as a rule that fits the next file of the kind.
enum class StartRule : std::uint8_t {
  AfterLines,  ///< DataStart::lines lines stand above them
  /// They begin DataStart::lines lines behind the first line that equals DataStart::line, blanks at
  /// its ends not counted; 1 is the line that follows it.
  BehindLine,
};

struct DataStart {
  StartRule rule = StartRule::AfterLines;
  std::size_t lines = 0;
  std::u16string line;
  Origin origin = Origin::Found;

  friend bool operator==(DataStart const&, DataStart const&) = default;
};

/// Where the data end, as a rule that fits the next file of the kind.
enum class EndRule : std::uint8_t {
  EndOfText,       ///< with the last line that is not blank
  BlankLine,       ///< in front of the first blank line
  LineLike,        ///< in front of the first line that begins with DataEnd::line
  LinesBeforeEnd,  ///< DataEnd::lines lines before the end of the text
};

struct DataEnd {
  EndRule rule = EndRule::EndOfText;
  std::size_t lines = 0;
  std::u16string line;
  Origin origin = Origin::Found;

  friend bool operator==(DataEnd const&, DataEnd const&) = default;
};

/// A record with fewer or more fields than there are columns.
enum class OddRowRule : std::uint8_t {
  Keep,    ///< the missing values are empty; what is too much belongs to the last column
  Reject,  ///< it is no record of the table
};

/// Which lines hold the table.
struct Region {
  DataStart start;
  DataEnd end;

  /// What was found in this file: the line of the first data, and the line behind the last, which
  /// is empty when the sample ends before the data do. The number of lines when there are none.
  std::size_t first_line = 0;
  std::optional<std::size_t> end_line;
  /// The lines that hold names, ascending; the names of several are joined by a blank. In the next
  /// file they stand as far above the data as here.
  std::vector<std::size_t> name_lines;
  Origin names_origin = Origin::Found;

  /// Which of the tables in the text this is, and how many there are.
  std::size_t table = 0;
  std::size_t num_tables = 1;
  /// Lines between the first and the last of the data that are headings within the table, sums of
  /// others, or no data at all.
  std::vector<std::size_t> group_lines;
  std::vector<std::size_t> total_lines;
  std::vector<std::size_t> other_lines;

  OddRowRule short_rows = OddRowRule::Keep;
  OddRowRule long_rows = OddRowRule::Keep;
  bool has_outer_bars = false;  ///< each line begins and ends with the delimiter, without a column
  bool has_rulers = false;      ///< lines of dashes and the like stand between the data

  friend bool operator==(Region const&, Region const&) = default;
};

struct Format {
  SourceFormat source;
  LayoutFormat layout;
  QuotingFormat quoting;
  CommentFormat comments;
  MarkFormat marks;
  Region region;
  /// Left to right; one for a text of lines, none for a text without records.
  std::vector<Column> columns;

  friend bool operator==(Format const&, Format const&) = default;
};

/// Whether the columns have names.
[[nodiscard]] inline bool has_names(Format const& format) noexcept {
  return !format.region.name_lines.empty();
}

}  // namespace textimport
