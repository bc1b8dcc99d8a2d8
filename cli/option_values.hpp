// SPDX-License-Identifier: MIT
//
// The values of options, from the words of the command line. Each function throws UsageError
// with the option, the value and what is allowed.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cli/option_table.hpp"

namespace cli {

/// Throws the error for a value that is not allowed; `allowed` completes "expected ...".
[[noreturn]] void refuse_value(Option option, std::string_view value, std::string_view allowed);

/// A whole number from `least` to `most`. `allowed` names the words that stand beside numbers.
[[nodiscard]] std::size_t count_value(Option option, std::string_view word, std::size_t least,
                                      std::size_t most, std::string_view words = "");

/// A number of bytes, at least 1, which may end with K or M.
[[nodiscard]] std::size_t size_value(Option option, std::string_view word, std::size_t most);

/// One or more column widths, apart by commas.
[[nodiscard]] std::vector<std::size_t> widths_value(Option option, std::string_view word);

/// Numbers of lines from 1 on, each larger than the one before.
[[nodiscard]] std::vector<std::size_t> lines_value(Option option, std::string_view word);

/// Text of at least one code unit, with its escapes resolved.
[[nodiscard]] std::u16string text_value(Option option, std::string_view word);

/// Text of exactly one code unit, which is not NUL.
[[nodiscard]] char16_t character_value(Option option, std::string_view word);

/// A mark within numbers: one code unit that is no letter and no digit.
[[nodiscard]] char16_t mark_value(Option option, std::string_view word);

/// The position of the word among the allowed ones of the option.
[[nodiscard]] std::size_t choice_value(Option option, std::string_view word);

}  // namespace cli
