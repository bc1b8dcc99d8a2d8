// SPDX-License-Identifier: MIT
//
// Compressed data are recognised by their first bytes, never by a name.
#pragma once

#include <string_view>

namespace textimport {

/// "gzip", "bzip2", "xz", "zstd", "lz4", "zip", or "none" for bytes that begin with none of them.
std::string_view compression_of(std::string_view head);

}  // namespace textimport
