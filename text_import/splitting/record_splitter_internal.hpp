// SPDX-License-Identifier: MIT
//
// The one reader of texts whose lines have more than delimiters, quotes and comment lines. Whoever
// reads records by a Format or a guess at one asks here; plain lines are left to the engine.
#pragma once

#include <cstddef>
#include <string_view>

#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_import/format/format.hpp"
#include "text_import/format/line_syntax.hpp"

namespace textimport::splitting {

/// What a Format says of its lines beyond the options of the engine's readers.
[[nodiscard]] LineSyntax line_syntax_of(Format const& format);

/// Reads at most `most` records from the start of `text` and appends them to `fields`, which are
/// views into it. Comment lines and rulers are no records; an empty line is one without fields
/// under the rule Read. The syntax is heeded where delimiters or blanks split the lines. There no
/// rule is an error, a quote that nothing closes is an ordinary character, and in a table with bars
/// or rulers, or whose last field is the rest of the line, records end with the line whatever its
/// quotes. Throws what the engine's reader throws for a plain syntax, std::bad_alloc otherwise.
void read_records(textio::parser::options const& options, textio::enums::StrategyMode mode,
                  LineSyntax const& syntax, std::u16string_view text, std::size_t most,
                  textio::FieldArray& fields);

}  // namespace textimport::splitting
