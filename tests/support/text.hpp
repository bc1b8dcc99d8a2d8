// SPDX-License-Identifier: MIT
//
// The words in which tests speak of texts and fields: UTF-16 as printable ASCII, and field arrays
// written down without a reader.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "text_format_detection/model/field_array.hpp"

namespace support {

/// The rows of a table: what goes in and what is expected.
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

/// The text with \n, \r, \t and, for everything else that is not printable ASCII, \uXXXX.
[[nodiscard]] std::string show(std::u16string_view text);

/// Fields between bars, records between slashes, "()" for a record without fields: a|b / () / c
[[nodiscard]] std::string show(textio::FieldArray const& fields);

/// The numbers with spaces between.
[[nodiscard]] std::string show(std::vector<std::size_t> const& numbers);

/// A double as it is usually written: 0.5, inf, nan.
[[nodiscard]] std::string show(double value);

/// One field for each line, as the line reader stores them; the texts outlive the array.
[[nodiscard]] textio::FieldArray make_lines(std::vector<std::u16string_view> const& lines);

/// Records with these numbers of fields, each field the text "x".
[[nodiscard]] textio::FieldArray make_records(std::vector<std::size_t> const& counts);

}  // namespace support
