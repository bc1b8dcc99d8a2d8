// SPDX-License-Identifier: MIT
//
// The words in which tests speak of texts and fields: UTF-16 as printable ASCII, and field arrays
// written down without a reader.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/model/field_array.hpp"

namespace support {

/// UTF-8, which is well-formed, to UTF-16.
[[nodiscard]] std::u16string to_utf16(std::string_view utf8);

/// The unit as \uXXXX.
[[nodiscard]] std::string escape(char16_t unit);

/// The text with \n, \r, \t and, for everything else that is not printable ASCII, \uXXXX.
[[nodiscard]] std::string show(std::u16string_view text);

/// Fields between bars, records between slashes, "()" for a record without fields: a|b / () / c
[[nodiscard]] std::string show(textio::FieldArray const& fields);

/// The numbers with spaces between.
[[nodiscard]] std::string show(std::vector<std::size_t> const& numbers);

/// The number, or "unknown".
[[nodiscard]] std::string show_count(std::size_t count);

/// A double as it is usually written: 0.5, inf, nan.
[[nodiscard]] std::string show(double value);

/// One field for each line, which ends at a line feed, as the line reader stores them; the text
/// outlives the array.
[[nodiscard]] textio::FieldArray make_lines(std::u16string_view text);

/// Records with these numbers of fields, each field the text "x".
[[nodiscard]] textio::FieldArray make_records(std::vector<std::size_t> const& counts);

}  // namespace support
