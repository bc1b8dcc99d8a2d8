// SPDX-License-Identifier: MIT
//
// The heap of a program whose operator new is replaced: how much of it is in use, and a call that
// fails on demand.
#pragma once

#include <cstddef>

namespace trust {

struct Heap {
  std::size_t calls = 0;        ///< of operator new
  std::size_t live_bytes = 0;   ///< asked for and not given back
  std::size_t peak_bytes = 0;   ///< the most of these; set it back to measure anew
  std::size_t fails_at = 0;     ///< the number of the call that throws std::bad_alloc; 0 for none
  bool fails_for_good = false;  ///< every later call throws as well
};

extern Heap heap;

}  // namespace trust
