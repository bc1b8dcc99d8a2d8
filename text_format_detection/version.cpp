// SPDX-License-Identifier: MIT
//
// The version of the library that a program runs with, which may be newer than its headers.
#include "text_format_detection/version.hpp"

namespace textio {

char const* library_version() noexcept {
  return TEXT_FORMAT_DETECTION_VERSION;
}

}  // namespace textio
