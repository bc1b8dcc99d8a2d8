// SPDX-License-Identifier: MIT
//
// Loaded in front of the C library, makes one read of one file go wrong: the call number
// READ_FAULT_AT of those on READ_FAULT_FILE, in the manner of READ_FAULT_KIND (error, interrupted
// or short: one byte).
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <unistd.h>

namespace {

std::string setting(char const* const name) {
  char const* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

bool is_the_file(int const descriptor) {
  std::array<char, 4096> target{};
  std::string const link = "/proc/self/fd/" + std::to_string(descriptor);
  return ::readlink(link.c_str(), target.data(), target.size() - 1) > 0 &&
         setting("READ_FAULT_FILE") == target.data();
}

}  // namespace

extern "C" ssize_t read(int const descriptor, void* const room, size_t const capacity) {
  using Read = ssize_t (*)(int, void*, size_t);
  static auto const real = reinterpret_cast<Read>(::dlsym(RTLD_NEXT, "read"));
  static int calls = 0;
  if (!is_the_file(descriptor) || std::to_string(++calls) != setting("READ_FAULT_AT")) {
    return real(descriptor, room, capacity);
  }
  std::string const kind = setting("READ_FAULT_KIND");
  if (kind == "short") {
    return real(descriptor, room, 1);
  }
  errno = kind == "interrupted" ? EINTR : EIO;
  return -1;
}
