// SPDX-License-Identifier: MIT
#include "text_import/report/character_names.hpp"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "text_import/report/display_text.hpp"

namespace textimport {

namespace {

struct CharacterName {
  char16_t character;
  std::string_view one;
  std::string_view many;
};

constexpr std::array<CharacterName, 31> character_names{{
    {u'\0', "NUL", "NULs"},
    {u'\t', "tab", "tabs"},
    {u'\v', "vertical tab", "vertical tabs"},
    {u'\f', "form feed", "form feeds"},
    {u'\x1c', "file separator", "file separators"},
    {u'\x1d', "group separator", "group separators"},
    {u'\x1e', "record separator", "record separators"},
    {u'\x1f', "unit separator", "unit separators"},
    {u' ', "space", "spaces"},
    {u'!', "exclamation mark", "exclamation marks"},
    {u'"', "quotation mark", "quotation marks"},
    {u'#', "number sign", "number signs"},
    {u'%', "per cent", "per cent signs"},
    {u'&', "ampersand", "ampersands"},
    {u'\'', "apostrophe", "apostrophes"},
    {u'*', "asterisk", "asterisks"},
    {u',', "comma", "commas"},
    {u'.', "full stop", "full stops"},
    {u'/', "slash", "slashes"},
    {u':', "colon", "colons"},
    {u';', "semicolon", "semicolons"},
    {u'<', "less-than", "less-than signs"},
    {u'=', "equals", "equals signs"},
    {u'>', "greater-than", "greater-than signs"},
    {u'?', "question mark", "question marks"},
    {u'\\', "backslash", "backslashes"},
    {u'^', "caret", "carets"},
    {u'_', "underscore", "underscores"},
    {u'`', "backquote", "backquotes"},
    {u'|', "vertical bar", "vertical bars"},
    {u'~', "tilde", "tildes"},
}};

/// The name of a single character, if it has one.
CharacterName const* name_of(std::u16string_view const delimiter) {
  if (delimiter.size() != 1) {
    return nullptr;
  }
  auto const* const known =
      std::ranges::find(character_names, delimiter.front(), &CharacterName::character);
  return known == character_names.end() ? nullptr : known;
}

std::string in_quotes(std::u16string_view const delimiter) {
  constexpr std::size_t longest_shown = 30;
  return fmt::format("\"{}\"", display_text(delimiter, longest_shown).utf8);
}

}  // namespace

std::string delimiter_name(std::u16string_view const delimiter) {
  auto const* const name = name_of(delimiter);
  return name == nullptr ? in_quotes(delimiter) : std::string(name->one);
}

std::string delimiter_names(std::u16string_view const delimiter) {
  auto const* const name = name_of(delimiter);
  return name == nullptr ? in_quotes(delimiter) : std::string(name->many);
}

}  // namespace textimport
