// SPDX-License-Identifier: MIT
//
// The names of encodings, as the conversion library knows them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace textimport {

/// The usual name of the encoding that has `name` among its names (upper and lower case, hyphens
/// and underscores alike); empty when none has, or when it cannot be converted.
std::string usual_encoding_name(std::string const& name);

/// The standard names of the known encodings, sorted.
std::vector<std::string> all_encoding_names();

/// The standard names of the encodings with a name near `name`, the nearest first, at most five.
std::vector<std::string> near_encoding_names(std::string_view name);

}  // namespace textimport
