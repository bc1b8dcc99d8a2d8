// SPDX-License-Identifier: MIT
//
// What the reports on the survey's answer and on the library's own have in common.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

#include "cli/answer.hpp"
#include "cli/lines.hpp"
#include "cli/settings.hpp"

namespace cli {

/// The layout, and the delimiter or the widths.
void add_layout(FactLines& lines, Answer const& answer, Settings const& settings);

/// What the text is, how much of it was looked at, why the answer is this one, and the notes.
void add_text(FactLines& lines, Answer const& answer, Settings const& settings);

/// What the user should know about the text beside the answer: damage, replaced bytes.
[[nodiscard]] std::vector<std::string> notes(Answer const& answer);

/// " (given)" when one of the parts is.
[[nodiscard]] std::string given_mark(Settings const& settings, std::initializer_list<Option> parts);

/// What a list is ended with that is too long to be shown: " and 3 more", or nothing.
[[nodiscard]] std::string and_more(std::size_t count);

}  // namespace cli
