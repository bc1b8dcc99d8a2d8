// SPDX-License-Identifier: MIT
//
// Made texts that are hard on a parser, in named families, at any size. Deterministic.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "text_format_detection/model/options.hpp"

namespace textio::benchmarks {

/// One family of texts, and the options under which it is hard.
struct HostileFamily {
  std::string_view name;
  /// Makes a text of exactly `length` code units.
  std::u16string (*make)(std::size_t length);
  parser::options options;
};

/// Every family, in a fixed order.
[[nodiscard]] std::span<HostileFamily const> hostile_families();

}  // namespace textio::benchmarks
