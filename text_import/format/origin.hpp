// SPDX-License-Identifier: MIT
//
// Where a part of a Format comes from.
#pragma once

#include <cstdint>

namespace textimport {

enum class Origin : std::uint8_t {
  Default,  ///< nothing was said and nothing found: what is usual
  Found,    ///< the analysis found it in the text
  Given,    ///< the caller said so
};

}  // namespace textimport
