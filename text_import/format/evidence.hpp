// SPDX-License-Identifier: MIT
//
// What an analysis noticed on its way to the Format: hypotheses, readings that were weighed, rules,
// the roles of lines, counts. Enumerations and flags; sentences are made of them in report/.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text_import/format/format.hpp"
#include "text_import/format/line_syntax.hpp"

namespace textimport {

/// What is assumed of a text before it is read.
struct Hypothesis {
  bool quotes_are_ordinary = false;             ///< quotes belong to the values
  char16_t quote = 0;                           ///< another quote than what is given; 0: that one
  std::vector<std::u16string> comment_markers;  ///< guessed ones, as CommentFormat::markers
  LineSyntax syntax;                            ///< what lines have beside, as far as it is guessed

  friend bool operator==(Hypothesis const&, Hypothesis const&) = default;
};

/// A rule at which readings fall. Both texts are constants.
enum class MeasureScale : std::uint8_t { Share, YesOrNo, Number };

struct MeasureText {
  std::string_view name;     ///< "unsound"
  std::string_view meaning;  ///< what the number is
  MeasureScale scale = MeasureScale::Share;
};

/// What one measure adds to the score of a reading.
struct ScorePiece {
  std::size_t measure = 0;  ///< position in Evidence::measures
  double value = 0;         ///< what was measured
  double amount = 0;        ///< that times its weight: above 0 it speaks for the reading
};

/// One way to read the text.
struct Candidate {
  std::size_t hypothesis = 0;  ///< position in Evidence::hypotheses
  Layout layout = Layout::Lines;
  std::u16string delimiter;  ///< of delimited readings
  std::size_t num_columns = 0;
  double coverage = 0;   ///< the share of the text's records that have that many fields
  double soundness = 0;  ///< how well its values hold together, 0 to 1
  /// False for a reading of fewer than two columns, which has no score.
  bool is_table = false;
  double score = 0;
  double share = 0;  ///< how likely it is beside the others, 0 to 1
  std::vector<ScorePiece> pieces;
};

enum class LineRole : std::uint8_t {
  Title,      ///< text above the data: a title, notes, settings
  Comment,    ///< starts with the comment marker
  Blank,      ///< empty, or blanks only
  Names,      ///< the names of the columns
  Units,      ///< between the names and the data: units, types, a second line of names
  Ruler,      ///< a line of dashes or the like
  Separator,  ///< "sep=;", with which a spreadsheet names its delimiter
  Group,      ///< a heading within the table
  Data,
  Total,   ///< the sum of other rows
  Note,    ///< a remark below the data that belongs to them
  Footer,  ///< text below the data
};

/// A line with its role.
struct NotedLine {
  std::size_t line = 0;  ///< physical line, from 0
  LineRole role = LineRole::Title;

  friend bool operator==(NotedLine const&, NotedLine const&) = default;
};

/// Why a line is what it is. The sentences are constants, the weightiest first.
struct LineReasons {
  std::size_t line = 0;  ///< physical line, from 0
  LineRole role = LineRole::Title;
  std::vector<std::string_view> reasons;
};

/// Counts of one column, in the sampled records of the data.
struct ColumnEvidence {
  std::size_t values = 0;         ///< fields that hold a value: not empty, no word for missing
  std::size_t fitting = 0;        ///< of these, those of the type
  std::size_t empty = 0;          ///< fields that are empty
  std::size_t longest_value = 0;  ///< in characters (code points), quotes not counted
  /// Numbers whose mark may stand before decimals or between thousands, while no number of the
  /// file tells which.
  std::size_t open_marks = 0;
  std::size_t other_marks = 0;  ///< numbers that only fit other marks than those of the column
};

/// Why the answer is what it is.
enum class Reason : std::uint8_t {
  NoRecords,       ///< the text holds nothing but blanks, or nothing at all
  Given,           ///< the caller said how the lines are split
  OnlyReading,     ///< one reading as a table was made, and it holds
  BestReading,     ///< one of several readings as a table is left
  NoTable,         ///< no reading as a table holds: each line is a value
  EngineDecided,   ///< the engine's own decision was asked for
  Unsure,          ///< not decided: too little speaks for the best reading
  ColumnsDiffer,   ///< not decided: the caller expects another number of columns
  LayoutNotFound,  ///< not decided: nothing splits the lines as the given layout asks for
  StartNotFound,   ///< not decided: no line is the one behind which the data should begin
};

/// How sure parts of the answer are, from 0 to 1: of the answers with such a value about that share
/// is right. Empty where nothing is said yet.
struct Certainty {
  double layout = 0;
  /// First and last line, and names.
  std::optional<double> table;
  /// The types, column by column, where the lines are split and the data stand as is said.
  std::vector<double> columns;
};

/// What a reader of the table goes by beside the layout.
enum class TablePart : std::uint8_t { FirstLine, LastLine, Names };

/// The reading that would be the answer if there were no winner.
struct RunnerUp {
  std::size_t candidate = 0;  ///< position in Evidence::candidates
  double certainty = 0;
};

struct Evidence {
  std::vector<Hypothesis> hypotheses;  ///< in the order in which they were tried
  std::vector<MeasureText> measures;   ///< what the scores are made of
  /// In the order in which they were made; the last is each line as a value.
  std::vector<Candidate> candidates;
  std::optional<std::size_t> winner;  ///< empty when each line is a value
  std::optional<RunnerUp> runner_up;

  /// The lines above and below the data, and groups and totals between them, ascending.
  std::vector<NotedLine> lines;
  /// Of those lines, and of the first and the last of the data, ascending; a blank line, a ruler
  /// and a comment need no reasons.
  std::vector<LineReasons> line_reasons;
  std::vector<ColumnEvidence> columns;  ///< one for each column of the Format
  /// The parts of the table that may as well be others, ascending.
  std::vector<TablePart> open_parts;

  std::size_t lines_seen = 0;       ///< physical lines of the sample
  std::size_t records_sampled = 0;  ///< lines above the data are among them
  bool goes_on = false;             ///< the text goes on behind the sample
  /// How many columns the caller expects, if he says so.
  std::optional<std::size_t> expected_columns;
  /// Fixed-width layouts that were given: the largest number of code units of a line of data that
  /// the widths leave over at its end.
  std::size_t units_left_over = 0;
  /// Names that stand more than once, each once; names that are empty are not among them.
  std::vector<std::u16string> repeated_names;
};

/// A rule of the request that a record breaks.
enum class BrokenRule : std::uint8_t {
  ConsecutiveDelimiters,
  LeadingDelimiters,
  TrailingDelimiters,
  EmptyLine,
  PartialField,
};

/// A place in a text, each part from 0. The column counts UTF-16 code units in the line.
struct Position {
  std::size_t offset = 0;  ///< in UTF-16 code units from the start of the text
  std::size_t line = 0;
  std::size_t column = 0;

  friend bool operator==(Position const&, Position const&) = default;
};

struct Violation {
  BrokenRule rule = BrokenRule::ConsecutiveDelimiters;
  Position position;
};

}  // namespace textimport
