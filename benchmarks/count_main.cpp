// SPDX-License-Identifier: MIT
//
// Runs one operation of the program once over one text, for counting its instructions from outside,
// and counts its allocations: PROGRAM OPERATION SHAPE LENGTH. PROGRAM alone lists what can be run.
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string_view>

#include "benchmarks/operation.hpp"

namespace {

struct Allocations {
  std::size_t count = 0;
  std::size_t bytes = 0;
};

Allocations allocations;  // NOLINT: operator new has no other place to count in

}  // namespace

// Every other form of new and delete comes down to these.
void* operator new(std::size_t const size) {
  ++allocations.count;
  allocations.bytes += size;
  if (void* const room = std::malloc(size > 0 ? size : 1)) {
    return room;
  }
  throw std::bad_alloc();
}

void operator delete(void* const room) noexcept {
  std::free(room);
}

void operator delete(void* const room, std::size_t /*size*/) noexcept {
  std::free(room);
}

namespace textio::benchmarks {

/// What callgrind collects: neither making the text nor the preparations.
[[gnu::noinline]] std::size_t counted_run(Work const& work) {
  return work();
}

namespace {

int run(Operation const& operation, Shape const& shape, std::size_t const length) {
  std::u16string const text = shape.make(length);
  Work const work = operation.prepare(shape, text);
  std::size_t const expected = work();  // and the things that are made once are made
  Allocations const before = allocations;
  std::size_t const result = counted_run(work);
  std::size_t const count = allocations.count - before.count;
  std::size_t const bytes = allocations.bytes - before.bytes;
  std::printf("result %zu allocations %zu bytes %zu\n", result, count, bytes);
  return result == expected ? 0 : 1;
}

void list_all() {
  for (Shape const& shape : shapes()) {
    for (Operation const& operation : operations()) {
      // One that has a reference of its own is a second view of another.
      if (operation.runs_over(shape) && !operation.reference) {
        std::printf("%s %.*s\n", operation.name.c_str(), static_cast<int>(shape.name.size()),
                    shape.name.data());
      }
    }
  }
}

int run_named(std::string_view const name, std::string_view const shape_name,
              std::string_view const length_text) {
  std::size_t length = 0;
  std::from_chars(length_text.data(), length_text.data() + length_text.size(), length);
  for (Operation const& operation : operations()) {
    if (length > 0 && operation.name == name) {
      return run(operation, find_shape(shape_name), length);
    }
  }
  std::fputs("usage: PROGRAM [OPERATION SHAPE LENGTH]\n", stderr);
  return 2;
}

}  // namespace

}  // namespace textio::benchmarks

int main(int const argc, char const* const* const argv) {
  if (argc == 1) {
    textio::benchmarks::list_all();
    return 0;
  }
  return argc == 4 ? textio::benchmarks::run_named(argv[1], argv[2], argv[3])
                   : textio::benchmarks::run_named({}, {}, {});
}
