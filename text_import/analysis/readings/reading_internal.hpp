// SPDX-License-Identifier: MIT
//
// One reading of the sample: what a strategy of the engine makes of it, and the analysis' own
// measures of that.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "text_format_detection/strategies/generic_strategy.hpp"
#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/fixed_widths_internal.hpp"
#include "text_import/analysis/readings/task_internal.hpp"
#include "text_import/analysis/values/value_grammar_internal.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport::analysis {

/// Where a record stands and how many fields it has; none for a blank or comment line.
struct RecordPlace {
  std::size_t line = 0;
  std::size_t num_fields = 0;
};

/// The records from the first to the last that have the same number of fields, with as few others
/// between them as possible: the table in the text.
struct TableBlock {
  std::size_t first = 0;      ///< record
  std::size_t last = 0;       ///< record, included
  std::size_t columns = 0;    ///< fields of a regular record
  std::size_t regular = 0;    ///< records with that many
  std::size_t irregular = 0;  ///< others inside, blank ones not counted
};

struct Reading {
  std::shared_ptr<textio::GenericStrategy> strategy;
  std::size_t hypothesis = 0;
  Layout layout = Layout::Lines;
  std::u16string delimiter;
  char16_t quote = 0;
  LineSyntax syntax;               ///< what its lines have beside
  ValueGrammar values{u'\0', {}};  ///< how its values are judged

  std::vector<RecordPlace> records;
  std::size_t filled_records = 0;
  TableBlock block;
  double agreement = 0;            ///< of the column profile; fixed widths only
  double equal_lengths = 0;        ///< of the column profile; fixed widths only
  double head_agreement = 0;       ///< the same in front of the last column; fixed widths only
  bool is_read_by_blanks = false;  ///< blanks part the same values; fixed widths only
  double head_share = 0;           ///< of the usual length, what stands there; fixed widths only
  bool by_ruler = false;           ///< a line of dashes or bars parts the columns
  double coverage = 0;             ///< regular records, as a share of all filled ones
  double regularity = 0;           ///< the same inside the block
  double split_share = 0;       ///< records of more than one field, as a share of all filled ones
  double much_split_share = 0;  ///< the same of more than three
  double soundness = 0;         ///< how well the values hold together, 0 to 1
  double broken_share = 0;      ///< values that a wrong cut seems to have left
  double empty_share = 0;       ///< fields that are empty
  double typed_share = 0;       ///< values that say more than text
  std::size_t typed_columns = 0;
  std::size_t filled_columns = 0;  ///< columns with a value
  std::size_t longest_record = 1;  ///< in lines
  double mixed_share = 0;          ///< values of another kind than most of their column
  bool has_names = false;        ///< the first record is text above columns that are more than text
  double open_end_share = 0;     ///< records whose last field is empty
  double aligned_share = 0;      ///< fields that begin or end below those of the record before
  double wide_gap_share = 0;     ///< fields with more than a single blank in front; split at blanks
  double torn_share = 0;         ///< fields that end inside a word; fixed widths only
  double inner_blank_share = 0;  ///< values that hold a blank
  double seconds_share = 0;      ///< records that are cut at the fraction of a second
  double key_share = 0;          ///< records that are a name and its value
};

/// The measures of what a strategy of the engine sampled. `columns`, for fixed widths only, tell
/// which lines belong to the table; elsewhere the number of fields does.
[[nodiscard]] Reading measure_records(std::shared_ptr<textio::GenericStrategy> strategy,
                                      LineIndex const& lines, Task const& task,
                                      FixedColumns const* columns = nullptr);

/// Hands a strategy its fields and scores it: as the engine samples it where the lines are plain.
void sample(std::shared_ptr<textio::GenericStrategy> const& strategy, LineSyntax const& syntax,
            LineIndex const& lines, std::size_t num_records);

/// The reading is of lines that have this beside.
void set_syntax(Reading& r, LineSyntax const& syntax, Task const& task);

/// The same strategy with the table at the end of the text, where that is another one than the
/// largest: titles and notes may look like a larger table.
[[nodiscard]] std::optional<Reading> measure_last_block(Reading const& r);

/// Whether the regular records of a reading hold the same values in another, as far as some are
/// compared.
[[nodiscard]] bool read_alike(Reading const& a, Reading const& b);

/// Takes the records of one field for the block, where there is none of several columns: the caller
/// says what splits the lines, and nothing does.
void take_single_column(Reading& r);

}  // namespace textimport::analysis
