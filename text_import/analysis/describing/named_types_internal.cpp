// SPDX-License-Identifier: MIT
#include "text_import/analysis/describing/named_types_internal.hpp"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::platform::is_letter;
using view = std::u16string_view;

constexpr auto words_for_points_in_time = std::to_array<view>(
    {u"time",    u"timestamp", u"epoch",       u"unix",     u"unixtime", u"posix",
     u"ts",      u"tstamp",    u"stamp",       u"utc",      u"date",     u"datetime",
     u"created", u"updated",   u"changed",     u"modified", u"accessed", u"expires",
     u"mtime",   u"ctime",     u"atime",       u"btime",    u"at",       u"when",
     u"zeit",    u"datum",     u"zeitstempel", u"fecha",    u"heure",    u"hora"});

constexpr auto words_for_durations = std::to_array<view>(
    {u"duration", u"elapsed", u"runtime", u"uptime", u"dauer", u"laufzeit", u"duree", u"dur\u00E9e",
     u"duraci\u00F3n", u"duracion", u"durata", u"lap", u"split"});

bool is_upper(char16_t const c) {
  return c >= u'A' && c <= u'Z';
}

/// Where the word at the start of a name ends: at what is no letter, or where upper case follows
/// lower case.
std::size_t end_of_word(view const name) {
  std::size_t end = 1;
  while (end < name.size() && (is_letter(name[end]) || name[end] > 0x7F) &&
         (!is_upper(name[end]) || is_upper(name[end - 1]))) {
    ++end;
  }
  return end;
}

bool holds_one_of(view name, std::span<view const> const words) {
  for (; !name.empty(); name.remove_prefix(end_of_word(name))) {
    view const word = name.substr(0, end_of_word(name));
    auto const is_it = [word](view const known) {
      return textio::platform::equals_ignoring_case(word, known);
    };
    if (std::ranges::any_of(words, is_it)) {
      return true;
    }
  }
  return false;
}

}  // namespace

void settle_by_names(std::vector<Column>& columns, std::vector<EpochUnit> const& possible) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    Column& column = columns[i];
    if (column.type_origin == Origin::Given) {
      continue;
    }
    if (i < possible.size() && possible[i] != EpochUnit::None &&
        holds_one_of(column.name, words_for_points_in_time)) {
      column.numbers.epoch = possible[i];
    }
    if (column.type == ValueType::Time && holds_one_of(column.name, words_for_durations)) {
      column.type = ValueType::Duration;
    }
  }
}

}  // namespace textimport::analysis
