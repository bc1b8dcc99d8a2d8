// SPDX-License-Identifier: MIT
//
// Answers as JSON, one object a line. Members are only ever added; "schema" changes when one is
// removed or changes its meaning. Everything beyond ASCII is escaped, so that the lines are safe
// to show on a terminal.
#pragma once

#include <string>

#include <nlohmann/json_fwd.hpp>

#include "cli/answer.hpp"
#include "cli/settings.hpp"
#include "text_import/import_error.hpp"

namespace cli {

inline constexpr int json_schema = 1;

/// The members of `detect`.
[[nodiscard]] nlohmann::ordered_json answer_object(Answer const& answer, Settings const& settings);

/// A file that could not be read.
[[nodiscard]] nlohmann::ordered_json error_object(std::string const& path,
                                                  textimport::ImportError const& error);

/// How one strategy reads a text: layout, delimiters, column_widths.
void add_reading(nlohmann::ordered_json& object, textio::GenericStrategy const& strategy);

/// The object on a line of its own.
[[nodiscard]] std::string json_line(nlohmann::ordered_json const& object);

}  // namespace cli
