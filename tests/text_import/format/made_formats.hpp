// SPDX-License-Identifier: MIT
//
// Formats for tests: pseudo-random ones that vary every member, and one like those of real files.
#pragma once

#include <cstdint>

#include "text_import/format/format.hpp"

namespace textimport::made {

/// Some Format for each seed, the same each time, without impossible values.
[[nodiscard]] Format random_format(std::uint64_t seed);

/// Semicolons, three columns, a title, names and a footer.
[[nodiscard]] Format usual_format();

}  // namespace textimport::made
