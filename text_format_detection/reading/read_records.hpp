// SPDX-License-Identifier: MIT
//
// Reading with given options, for callers: text for real, block by block, with the caller's own
// rules.
#pragma once

#include <cstddef>

#include "text_format_detection/export.hpp"
#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/model/field.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/reading/read_summary.hpp"

namespace textio {

/// Reads records from the start of `text` and appends them to `fields`.
///
/// The reader is the one for `mode` (delimited and space-aligned share theirs), and the options are
/// taken as they are: no strategy adjusts them, and the rules set to Error raise their errors.
/// Stops when `record_count` records are counted or `line_limit` lines are scanned (`unknown_count`
/// for no limit; comment lines count, and may exceed the limit by those of one comment), or at the
/// end of the text; continue with the text behind `units_consumed`. A record cut off by the end of
/// a block is read as it stands: hand over blocks that end with a line ending (see
/// get_fixed_stream). In fixed-width mode a record keeps at most as many fields as there are column
/// widths, if any.
///
/// Empty lines under the rule Read are stored and counted. Under this rule, when the loop runs to
/// the end of a text whose last record ends with a line ending, one more empty record is stored:
/// not in fixed-width mode, and not when a limit is reached with that record. Reading in blocks
/// therefore adds one at the end of each block that is read to its end.
///
/// The fields are views into `text`. Time is linear in what is consumed.
/// Throws the five parser errors; the records stored before stay in `fields`. Throws
/// std::bad_alloc.
TFD_API ReadSummary read_records(parser::options const& options, enums::StrategyMode mode,
                                 Field const& text, std::size_t record_count,
                                 std::size_t line_limit, FieldArray& fields);

}  // namespace textio
