// SPDX-License-Identifier: MIT
//
// A Format as JSON, and back: how it is saved, and handed on to other programs. From Format to JSON
// to Format is the identity.
//
// Members are called as in format.hpp, enumerations by their words. A character is a text of one
// UTF-16 code unit, or null for none; what may be absent is null. A text that has no UTF-8, because
// a surrogate stands in it alone, is {"utf16": [55296, ...]} in the place of a string, and bytes
// that are no UTF-8 are {"bytes": "ff00..."} in hexadecimal. docs/format.schema.json describes all
// of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "text_import/export.hpp"
#include "text_import/format/format.hpp"

namespace textimport {

enum class JsonForm : std::uint8_t {
  Indented,  ///< for people and files: UTF-8, and a line feed at the end
  Compact,   ///< one line of ASCII without a line feed
};

[[nodiscard]] TEXT_IMPORT_API std::string to_json(Format const& format,
                                                  JsonForm form = JsonForm::Indented);

/// A Format, or what is wrong with its JSON: one of both.
struct FormatParse {
  std::optional<Format> format;
  /// Which member, what is wrong with it, and what is allowed there:
  /// `/columns/2/type: "int" is not allowed; allowed: empty, integer, ...`. Parts of the JSON stand
  /// in it as they are.
  std::string error;
};

/// Reads a Format. `schema` and `layout` must be there; other members that are missing have their
/// defaults. Unknown members, wrong types and impossible values are errors. Throws nothing but
/// allocation failure.
[[nodiscard]] TEXT_IMPORT_API FormatParse format_from_json(std::string_view json);

}  // namespace textimport
