// SPDX-License-Identifier: MIT
//
// Words whose meaning only a column tells: pairs for true and false, words and signs that stand for
// no value among values of another type, remarks behind numbers.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "text_import/analysis/values/value_words_internal.hpp"

namespace textimport::analysis {

struct TruthWords {
  std::u16string_view yes;
  std::u16string_view no;
};

/// In lower case. A column that holds both words of a pair, and nothing else, is boolean.
inline constexpr auto truth_pairs = std::to_array<TruthWords>({
    {u"true", u"false"},
    {u"yes", u"no"},
    {u"y", u"n"},
    {u"t", u"f"},
    {u"on", u"off"},
    {u"ja", u"nein"},
    {u"j", u"n"},
    {u"ja", u"nee"},
    {u"ja", u"nej"},
    {u"ja", u"nei"},
    {u"oui", u"non"},
    {u"o", u"n"},
    {u"s\u00ED", u"no"},
    {u"si", u"no"},
    {u"s\u00EC", u"no"},
    {u"s", u"n"},
    {u"sim", u"n\u00E3o"},
    {u"tak", u"nie"},
    {u"ano", u"ne"},
    {u"igen", u"nem"},
    {u"evet", u"hay\u0131r"},
    {u"da", u"nu"},
    {u"\u0434\u0430", u"\u043D\u0435\u0442"},
    {u"\u0414\u0430", u"\u041D\u0435\u0442"},
    {u"\u662F", u"\u5426"},
    {u"wahr", u"falsch"},
    {u"vrai", u"faux"},
    {u"verdadero", u"falso"},
    {u"vero", u"falso"},
    {u"verdadeiro", u"falso"},
    {u"prawda", u"fa\u0142sz"},
});

/// In lower case: signs, and words that mean nothing else, among values of another type.
inline constexpr auto words_for_missing_among_values = std::to_array<std::u16string_view>({
    u":",       u"..",     u"...",       u"\u2026",    u"/",          u"\u2013", u"\u2014",
    u"\u2212",  u"---",    u"----",      u"-----",     u"#",          u"\u2022", u"\u00B7",
    u"n.a.",    u"n.a",    u"na.",       u"n. a.",     u"n.d.",       u"n.d",    u"nd",
    u"n/d",     u"n.v.",   u"k.a.",      u"k. a.",     u"k.a",        u"s.d.",   u"s/d",
    u"b.d.",    u"b/d",    u"h.d.",      u"<na>",      u"(na)",       u"<null>", u"(null)",
    u"[null]",  u"nat",    u"unknown",   u"unbekannt", u"n/v",        u"tbd",    u"not available",
    u"no data", u"nodata", u"undefined", u"#div/0!",   u"#value!",    u"#ref!",  u"#name?",
    u"#num!",   u"#null!", u"#n/v",      u"(x)",       u"(d)",        u"(s)",    u"(z)",
    u"[x]",     u"[c]",    u"[z]",       u"[low]",     u"suppressed", u"err",    u"error",
});

/// The same for letters of statistics offices, which mean something else among texts: they are
/// believed where most values are of another type.
inline constexpr auto letters_for_missing_among_values =
    std::to_array<std::u16string_view>({u"x", u"c", u"z", u"s", u"u", u"w", u"d", u"m"});

/// What a remark behind a number may be made of.
inline constexpr std::u16string_view flag_letters = u"bcdefinprsuz";
inline constexpr std::size_t longest_flag = 3;

[[nodiscard]] inline bool means_missing_among_values(std::u16string_view const text) noexcept {
  return is_one_of(text, words_for_missing_among_values);
}

[[nodiscard]] inline bool is_letter_for_missing(std::u16string_view const text) noexcept {
  return text.size() == 1 && is_one_of(text, letters_for_missing_among_values);
}

}  // namespace textimport::analysis
