// SPDX-License-Identifier: MIT
#include "tests/trust/heap.hpp"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace trust {

Heap heap;

}  // namespace trust

namespace {

constexpr std::size_t header = alignof(std::max_align_t);  // keeps the size of a block

}  // namespace

// Every other form of new and delete comes down to these, if need be by the one for `nothrow`: the
// sanitizers have one of their own.
void* operator new(std::size_t const size) {
  auto& heap = trust::heap;
  ++heap.calls;
  bool const fails = heap.fails_at != 0 && (heap.fails_for_good ? heap.calls >= heap.fails_at
                                                                : heap.calls == heap.fails_at);
  void* const block = fails ? nullptr : std::malloc(header + size);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  *static_cast<std::size_t*>(block) = size;
  heap.live_bytes += size;
  heap.peak_bytes = std::max(heap.peak_bytes, heap.live_bytes);
  return static_cast<char*>(block) + header;
}

void* operator new(std::size_t const size, std::nothrow_t const& /*tag*/) noexcept {
  try {
    return operator new(size);
  } catch (std::bad_alloc const&) {
    return nullptr;
  }
}

void operator delete(void* const room) noexcept {
  if (room != nullptr) {
    void* const block = static_cast<char*>(room) - header;
    trust::heap.live_bytes -= *static_cast<std::size_t*>(block);
    std::free(block);
  }
}

void operator delete(void* const room, std::size_t /*size*/) noexcept {
  ::operator delete(room);
}
