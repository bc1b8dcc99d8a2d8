// SPDX-License-Identifier: MIT
#include "text_import/splitting/rulers_internal.hpp"

#include <algorithm>
#include <cstddef>

namespace textimport::splitting {

bool is_ruler(std::u16string_view const line) noexcept {
  constexpr std::size_t least = 3;
  std::size_t drawn = 0;
  std::size_t run = 0;
  std::size_t longest_run = 0;
  bool has_blank = false;
  for (char16_t const c : line) {
    bool const is_blank = c == u' ' || c == u'\t';
    if (!is_blank && c != u':' && !is_stroke(c) && !is_joint(c)) {
      return false;
    }
    has_blank = has_blank || (is_blank && drawn > 0);
    drawn += is_blank ? 0U : 1U;
    run = is_stroke(c) ? run + 1 : 0;
    longest_run = std::max(longest_run, run);
  }
  return longest_run >= least || (longest_run > 0 && !has_blank && drawn >= least);
}

}  // namespace textimport::splitting
