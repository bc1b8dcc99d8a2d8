// SPDX-License-Identifier: MIT
//
// The survey: asks the library more than once about a sample, weighs the readings by named rules,
// and tells a finding from what is not decided.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/model/field.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"
#include "text_import/export.hpp"
#include "text_import/survey/column_findings.hpp"

namespace textimport {

/// How a text is laid out.
enum class Layout : std::uint8_t {
  Delimited,
  SpaceAligned,
  FixedWidth,
  Lines,  ///< each line is one value: prose, logs, a list
};

/// What a line is that holds no data.
enum class LineRole : std::uint8_t {
  Title,      ///< text above the data: a title, notes, settings
  Comment,    ///< starts with the comment marker
  Blank,      ///< empty, or blanks only
  Names,      ///< the names of the columns
  Units,      ///< between the names and the data: units, types, a second line of names
  Ruler,      ///< a line of dashes or the like
  Separator,  ///< "sep=;", with which a spreadsheet names its delimiter
  Footer,     ///< text below the data
};

/// The layout of a text that is read in this mode.
[[nodiscard]] TEXT_IMPORT_API Layout layout_of(textio::enums::StrategyMode mode) noexcept;

/// The word for a layout or a role in machine-readable output: "space-aligned", "names" ...
[[nodiscard]] TEXT_IMPORT_API char const* name_of(Layout layout) noexcept;
[[nodiscard]] TEXT_IMPORT_API char const* name_of(LineRole role) noexcept;

/// A line that holds no data.
struct NotedLine {
  std::size_t line = 0;  ///< physical line, from 0
  LineRole role = LineRole::Title;
};

/// Which parts the caller gives in the options: these stay as they are, and the rest is surveyed
/// around them.
struct GivenParts {
  bool delimiter = false;     ///< options::delimiters
  bool layout = false;        ///< SurveyOptions::layout
  bool widths = false;        ///< options::column_widths
  bool quote = false;         ///< options::quote_characters
  bool comment = false;       ///< options::comment_style
  bool decimal_mark = false;  ///< options::decimal_separator
  bool header_lines = false;  ///< options::header_lines, in physical lines
};

struct SurveyOptions {
  /// The parts that are not given are where the survey starts from: quotes `"`, no comments.
  textio::parser::options parsing;
  ostrel::io::text::typedetection::TypeAnalyzerOptions types;
  GivenParts given;
  Layout layout = Layout::Lines;  ///< read when it is given
  /// How many records are sampled; `textio::unknown_count` for all.
  std::size_t records = 250;
  /// True when the text goes on behind the sample: then its end says nothing of a footer.
  bool goes_on = false;
  /// The name of the file's encoding, for boundaries in bytes; empty: unknown.
  std::string encoding;
};

/// One reading that was weighed.
struct SurveyCandidate {
  std::string hypothesis;  ///< what was assumed: "as given", "comment lines" ...
  Layout layout = Layout::Lines;
  std::u16string delimiter;  ///< of delimited readings
  std::size_t num_columns = 0;
  double coverage = 0;   ///< the share of the text's records that have that many fields
  double soundness = 0;  ///< how well its values hold together, 0 to 1
  /// The rule at which it fell, a constant; empty for the answer.
  std::string_view fell_at;
  double measure = 0;  ///< the number that this rule looks at
};

struct SurveyFindings {
  /// False when the answer is a guess: the caller should ask.
  bool decided = true;
  bool has_names = false;
  Layout layout = Layout::Lines;
  char16_t quote = 0;  ///< 0: no field is quoted
  char16_t decimal_mark = u'.';
  /// From 0 to 1: of the answers with this value about that share is right.
  double confidence = 0;
  /// Why, in words: "given", "one reading as a table is left" ...
  std::string reason;

  std::u16string delimiter;  ///< of a delimited text, else empty
  std::vector<std::u16string> comment_style;
  std::size_t num_columns = 1;

  /// The physical line, from 0, of the first data; the number of lines when there are none.
  std::size_t data_starts_at = 0;
  /// The line behind the last data; empty when the sample ends before the data do.
  std::optional<std::size_t> data_ends_at;
  /// The lines above and below the data, ascending. Comment and blank lines between data are not
  /// listed.
  std::vector<NotedLine> lines;
  /// One for each column, left to right; one for a text that is read line by line.
  std::vector<ColumnFindings> columns;

  /// Reads the whole text: sampled and scored by the library, its fields views into the sample.
  std::shared_ptr<textio::GenericStrategy> strategy;

  /// Every reading that was weighed, in the order in which they were made.
  std::vector<SurveyCandidate> candidates;
  /// The answer's place among them; empty when each line is a value.
  std::optional<std::size_t> winner;
  /// The reading that would be the answer if there were no winner, and how sure that would be.
  std::optional<std::size_t> runner_up;
  double runner_up_confidence = 0;
};

/// Surveys a sample, which ends at its length or at its first U+FFFF and outlives the findings.
/// Deterministic. Takes time linear in the sample for each hypothesis, of which there are at most
/// six, and for each candidate of the library. Throws std::bad_alloc.
[[nodiscard]] TEXT_IMPORT_API SurveyFindings survey_text(textio::Field const& sample,
                                                          SurveyOptions const& options);

}  // namespace textimport
