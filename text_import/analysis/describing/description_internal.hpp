// SPDX-License-Identifier: MIT
//
// From the reading that is left to the Format: where the data stand, their columns, and the parts
// around them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"
#include "text_import/analysis/readings/task_internal.hpp"
#include "text_import/format/evidence.hpp"
#include "text_import/format/format.hpp"

namespace textimport::analysis {

/// The members of the Format and of the Evidence that follow from one reading.
struct Description {
  Format format;
  std::vector<NotedLine> lines;
  std::vector<LineReasons> line_reasons;
  std::vector<ColumnEvidence> columns;
  std::vector<double> column_certainties;
  std::size_t units_left_over = 0;
  /// How sure first line, last line and names are, 0 to 1, if the layout is right.
  double table_certainty = 1;
  std::vector<TablePart> open_parts;
  std::vector<std::u16string> repeated_names;
  /// The caller names the line behind which the data begin, and there is none like it.
  bool start_is_missing = false;
};

/// The table of a reading that was made under a hypothesis.
[[nodiscard]] Description describe_table(Reading const& r, Hypothesis const& hypothesis,
                                         Task const& task, LineIndex const& lines);

/// A text whose lines are values.
[[nodiscard]] Description describe_list(Task const& task, LineIndex const& lines);

}  // namespace textimport::analysis
