// SPDX-License-Identifier: MIT
//
// Made texts in the shapes that real tables, reports and logs come in, at any size. Deterministic.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace textio::benchmarks {

/// One shape of text, and how it is read when it is read by one reader alone.
struct Shape {
  std::string_view name;
  /// Makes a text of exactly `length` code units, nearly all of them ASCII.
  std::u16string (*make)(std::size_t length);
  /// What separates its fields; a comma where nothing does.
  char16_t delimiter = u',';
  /// The widths of its columns in code units; eight columns of ten where it has none.
  std::vector<std::size_t> widths = std::vector<std::size_t>(8, 10);
};

/// Every shape, in a fixed order.
[[nodiscard]] std::span<Shape const> shapes();

/// The shape of that name. Throws std::invalid_argument.
[[nodiscard]] Shape const& find_shape(std::string_view name);

}  // namespace textio::benchmarks
