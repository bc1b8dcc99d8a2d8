// SPDX-License-Identifier: MIT
//
// Rows of a text as a Format reads them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text_import/export.hpp"
#include "text_import/format/format.hpp"

namespace textimport {

/// The values of one row: blanks around delimited values and quotes are taken off.
using Row = std::vector<std::u16string>;

/// The first rows of a text of data, at most `most`. No rule is broken by any record here, not even
/// one that is set to Error: Analysis::violation tells of that.
[[nodiscard]] TEXT_IMPORT_API std::vector<Row> read_rows(Format const& format,
                                                         std::u16string_view data,
                                                         std::size_t most);

}  // namespace textimport
