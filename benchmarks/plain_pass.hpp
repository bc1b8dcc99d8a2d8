// SPDX-License-Identifier: MIT
//
// The least that anything which reads lines has to do: the measure that all figures are compared
// with.
#pragma once

#include <cstddef>
#include <string_view>

namespace textio::benchmarks {

/// Finds each line feed of the text, with the widest instructions that the build has. Returns the
/// sum of their positions.
[[nodiscard]] std::size_t plain_pass(std::u16string_view text);

}  // namespace textio::benchmarks
