// SPDX-License-Identifier: MIT
//
// What is measured: a list of operations, each of which can be run over a text of any shape. One
// list is timed by benchmark_main.cpp and counted by count_main.cpp; each program is linked with
// one of the lists.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "benchmarks/shapes.hpp"

namespace textio::benchmarks {

/// Something to be run again and again. Returns a number that depends on all that was done.
using Work = std::function<std::size_t()>;

/// Makes the work over a text of a shape; the text outlives the work.
using Prepare = std::function<Work(Shape const& shape, std::u16string_view text)>;

/// One operation, and what its time is compared with.
struct Operation {
  std::string name;
  Prepare prepare;
  /// The only shapes it is run over, apart by blanks; empty for all.
  std::string_view shapes = {};
  std::string_view reference_name = "plain pass";
  /// What is run in turn with it; the plain pass over the same text where this is empty.
  Prepare reference = nullptr;

  [[nodiscard]] bool runs_over(Shape const& shape) const;
};

/// The lengths of the texts in code units: 1 Ki, 64 Ki, 1 Mi and 8 Mi.
[[nodiscard]] std::span<std::size_t const> lengths();

/// Every operation of this program.
[[nodiscard]] std::span<Operation const> operations();

}  // namespace textio::benchmarks
