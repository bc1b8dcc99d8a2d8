// SPDX-License-Identifier: MIT
//
// Rows of a text as a Format reads them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/model/options.hpp"
#include "text_import/export.hpp"
#include "text_import/format/format.hpp"

namespace textimport {

/// The values of one row: blanks around delimited values and quotes are taken off.
using Row = std::vector<std::u16string>;

/// The options with which the engine's readers read a text of this Format.
[[nodiscard]] TEXT_IMPORT_API textio::parser::options reading_options(Format const& format);

/// The mode of these readers.
[[nodiscard]] TEXT_IMPORT_API textio::enums::StrategyMode reading_mode(Layout layout) noexcept;

/// The first rows of a text of data, at most `most`. Rules that are set to Error are not broken by
/// any record here: Analysis::violation tells of them.
[[nodiscard]] TEXT_IMPORT_API std::vector<Row> read_rows(Format const& format,
                                                         std::u16string_view data,
                                                         std::size_t most);

}  // namespace textimport
