// SPDX-License-Identifier: MIT
//
// What the caller says of the lines that hold the table, found in the text.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/task_internal.hpp"

namespace textimport::analysis {

struct GivenRegion {
  std::optional<std::size_t> first;  ///< the first line of the data
  std::optional<std::size_t> end;    ///< the line behind the last, where that can be seen
  /// Where names stand; an empty list: nowhere. Without a value they are to be found.
  std::optional<std::vector<std::size_t>> name_lines;
  /// A rule is given, and no line of the text is the one that it names.
  bool start_is_missing = false;
};

[[nodiscard]] GivenRegion find_given_region(Task const& task, LineIndex const& lines);

}  // namespace textimport::analysis
