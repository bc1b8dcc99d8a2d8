// SPDX-License-Identifier: MIT
//
// Words that tell what a line is for, in the languages that most tables are written in. A line, or
// its first cell, begins with one of them.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textimport::analysis {

inline constexpr auto total_words = std::to_array<std::u16string_view>(
    {u"total",        u"sum",         u"subtotal", u"sub-total",
     u"grand total",  u"all ",        u"overall",  u"average",
     u"mean",         u"median",      u"balance",  u"gesamt",
     u"summe",        u"insgesamt",   u"zusammen", u"mittel",
     u"durchschnitt", u"ensemble",    u"somme",    u"moyenne",
     u"suma",         u"promedio",    u"totale",   u"somma",
     u"media",        u"soma",        u"totaal",   u"gemiddeld",
     u"razem",        u"i alt",       u"totalt",   u"\u0418\u0442\u043E\u0433",
     u"\u5408\u8BA1", u"\u5408\u8A08"});

inline constexpr auto note_words = std::to_array<std::u16string_view>(
    {u"source",      u"note",       u"footnote",  u"for more",
     u"see ",        u"internet",   u"http",      u"updated",
     u"last update", u"generated",  u"printed",   u"data are",
     u"includes",    u"excludes",   u"copyright", u"\u00A9",
     u"quelle",      u"hinweis",    u"anmerkung", u"stand:",
     u"erstellt",    u"fuente",     u"nota",      u"fonte",
     u"remarque",    u"bron",       u"noot",      u"\u017Ar\u00F3d\u0142o",
     u"symbol",      u"k\u00E4lla", u"kilde",     u"\u6CE8"});

inline constexpr auto title_words = std::to_array<std::u16string_view>(
    {u"table", u"chart", u"figure", u"report", u"appendix", u"tabelle", u"bericht", u"tableau",
     u"rapport", u"cuadro", u"tabla", u"tavola", u"tabel", u"tabela"});

inline constexpr auto unit_words = std::to_array<std::u16string_view>(
    {u"percent", u"per cent", u"thousand", u"in thousand", u"million", u"billion", u"number",
     u"unit", u"dollars", u"prozent", u"tausend", u"mio", u"anzahl", u"pourcentage", u"porcentaje",
     u"%"});

/// The ASCII characters with which the words begin, in lower case.
template <std::size_t n>
[[nodiscard]] constexpr std::array<bool, 128> starts_of(
    std::array<std::u16string_view, n> const& words) {
  std::array<bool, 128> starts{};
  for (std::u16string_view const word : words) {
    if (word.front() < starts.size()) {
      starts[word.front()] = true;
    }
  }
  return starts;
}

/// Whether the text begins with one of the words, in any letter case. Most texts are passed over at
/// a glance.
template <auto const& words>
[[nodiscard]] bool begins_with_one_of(std::u16string_view const text) noexcept {
  constexpr std::array<bool, 128> starts = starts_of(words);
  char16_t const first = text.empty() ? u'\0' : textio::platform::to_lower(text.front());
  if (text.empty() || (first < starts.size() && !starts[first])) {
    return false;
  }
  return std::ranges::any_of(words, [&](std::u16string_view const word) {
    return textio::platform::starts_with_ignoring_case(text, word);
  });
}

}  // namespace textimport::analysis
