// SPDX-License-Identifier: MIT
//
// The constant strings that several folders share.
#pragma once

#include <string_view>

namespace textio::model {

/// The default delimiters. A delimiter's position is its prior rank, and the length of the string
/// is the bound that a preferred prior rank lies below.
inline constexpr std::u16string_view default_delimiters = u",\t; ";

/// What separates the columns of a space-aligned text.
inline constexpr std::u16string_view blanks = u" \t";

}  // namespace textio::model
