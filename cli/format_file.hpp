// SPDX-License-Identifier: MIT
//
// A Format as a file: what --save writes and --format reads.
#pragma once

#include <string>

#include "text_import/format/format.hpp"

namespace cli {

/// Throws textimport::ImportError when the file cannot be read, and UsageError when it holds no
/// Format; the message names the file and the place in its JSON.
[[nodiscard]] textimport::Format read_format(std::string const& path);

/// Writes the Format beside `path` and puts it in its place when it is whole, so that whoever reads
/// finds the old file or the new one. Throws OutputError.
void save_format(std::string const& path, textimport::Format const& format);

}  // namespace cli
