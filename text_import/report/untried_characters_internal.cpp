// SPDX-License-Identifier: MIT
#include "text_import/report/untried_characters_internal.hpp"

#include <string_view>

#include <fmt/format.h>

#include "text_import/format/utf.hpp"
#include "text_import/report/character_names.hpp"
#include "text_import/report/headings_internal.hpp"
#include "text_import/report/reading_words_internal.hpp"

namespace textimport::reporting {

namespace {

using textio::detection::NotTried;
using textio::detection::UntriedCharacter;

std::string_view reason_text(NotTried const why) {
  switch (why) {
    case NotTried::DecimalMark:
      return "the decimal mark";
    case NotTried::ThousandsMark:
      return "the thousands mark";
    case NotTried::NeverDelimiter:
      return "never delimiters: quotes, brackets and signs belong to values";
    case NotTried::NotAscii:
      return "not ASCII; such delimiters are tried beside the engine, or given";
    case NotTried::OutsideMiddle:
      break;
  }
  return "only in the first and last lines, where titles and sums stand";
}

std::string name_of(char32_t const character) {
  std::string bytes;
  append_utf8(bytes, is_surrogate(character) ? U'\uFFFD' : character);
  return delimiter_name(*from_utf8(bytes));
}

/// The characters that were left out for one reason, in one paragraph.
std::string paragraph_of(std::vector<UntriedCharacter> const& untried, NotTried const why,
                         std::size_t const width) {
  constexpr std::size_t most = 20;
  constexpr std::size_t left = 6;
  std::vector<std::string> names;
  std::size_t count = 0;
  for (UntriedCharacter const& character : untried) {
    if (character.why == why && ++count <= most) {
      names.push_back(name_of(character.character));
    }
  }
  if (count == 0) {
    return {};
  }
  return paragraph(fmt::format("{}{}: {}", fmt::join(names, ", "), and_more(count - names.size()),
                               reason_text(why)),
                   width, left);
}

}  // namespace

std::string untried_text(std::vector<UntriedCharacter> const& untried, std::size_t const width) {
  std::string others;
  for (NotTried const why :
       {NotTried::DecimalMark, NotTried::ThousandsMark, NotTried::NeverDelimiter,
        NotTried::NotAscii, NotTried::OutsideMiddle}) {
    others += paragraph_of(untried, why, width);
  }
  return paragraph(others.empty() ? "not tried: letters and digits"
                                  : "not tried: letters and digits, and of the others",
                   width) +
         others;
}

}  // namespace textimport::reporting
