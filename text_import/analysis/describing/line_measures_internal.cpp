// SPDX-License-Identifier: MIT
#include "text_import/analysis/describing/line_measures_internal.hpp"

#include <algorithm>
#include <set>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/describing/role_words_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

bool is_identifier(view const text) noexcept {
  return textio::platform::is_letter(text.front()) &&
         std::ranges::all_of(text, [](char16_t const c) {
           return textio::platform::is_letter(c) || textio::platform::is_digit(c) || c == u'_' ||
                  c == u'.' || c == u'-';
         });
}

std::int64_t whole_number(view const text) noexcept {
  constexpr std::int64_t most = 1'000'000;
  std::int64_t number = 0;
  for (char16_t const c : text) {
    if (!textio::platform::is_digit(c)) {
      break;
    }
    number = std::min(number * 10 + (c - u'0'), most);
  }
  return number;
}

bool has_decimals(view const text) noexcept {
  std::size_t const mark = text.find_last_of(u".,");
  return mark != view::npos && mark + 1 < text.size() && text.substr(mark) != u".0";
}

std::int64_t add_number(LineMeasures& m, LineCell const& cell,
                        std::optional<std::int64_t> const last) {
  ++m.numbers;
  m.years += is_year(cell.text) ? 1U : 0U;
  m.has_decimals = m.has_decimals || has_decimals(cell.text);
  std::int64_t const number = whole_number(cell.text);
  if (last) {
    m.counts_up = m.counts_up && number == *last + 1;
    ++m.steps_up;
  }
  return number;
}

void add_text(LineMeasures& m, LineCell const& cell) {
  ++m.texts;
  m.year_texts += holds_year(cell.text) ? 1U : 0U;
  m.words += cell.is_word ? 1U : 0U;
  m.identifiers += is_identifier(cell.text) ? 1U : 0U;
  m.has_unit = m.has_unit || begins_with_one_of<unit_words>(cell.text);
  m.has_address = m.has_address || cell.text.find(u"://") != view::npos ||
                  cell.text.find(u"www.") != view::npos;
  m.has_sentence = m.has_sentence || cell.text.find(u". ") != view::npos;
}

}  // namespace

LineMeasurer::LineMeasurer(TableLines const& lines, std::vector<TableLine const*> const& filled)
    : lines_(lines),
      habits_(lines),
      typed_columns_(static_cast<std::size_t>(std::ranges::count_if(
          habits_.columns(), [](auto const& column) { return ColumnHabits::is_typed(column); }))),
      texts_(lines.columns_seen()),
      num_texts_(lines.columns_seen()) {
  for (TableLine const* const line : filled) {
    auto const cells = lines_.cells(*line);
    for (std::size_t i = 0; i < std::min(cells.size(), texts_.size()); ++i) {
      if (cells[i].kind == CellKind::Text) {
        ++texts_[i][cells[i].text];
        ++num_texts_[i];
      }
      years_ += cells[i].kind == CellKind::Number && is_year(cells[i].text) ? 1U : 0U;
      numbers_ += cells[i].kind == CellKind::Number ? 1U : 0U;
    }
  }
}

LineMeasures LineMeasurer::measure(TableLine const& line) const {
  LineMeasures m;
  auto const cells = lines_.cells(line);
  m.cells = line.num_fields;
  std::set<view> seen;
  std::optional<std::int64_t> last;
  std::size_t last_filled = 0;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    LineCell const& cell = cells[i];
    m.kinds.push_back(cell.kind);
    if (cell.kind == CellKind::Empty) {
      m.first_is_empty = m.first_is_empty || i == 0;
      last.reset();
      continue;
    }
    m.gaps += m.filled > 0 && i > last_filled + 1 ? 1U : 0U;
    last_filled = i;
    if (m.filled++ == 0) {
      m.first_text = cell.text;
    }
    m.longest = std::max(m.longest, cell.text.size());
    m.in_brackets += cell.text.starts_with(u'(') ? 1U : 0U;
    std::optional<std::int64_t> number;
    if (cell.kind == CellKind::Number) {
      number = add_number(m, cell, last);
    } else if (cell.kind == CellKind::Text) {
      add_text(m, cell);
      m.repeated += seen.insert(cell.text).second ? 0U : 1U;
    }
    last = number;
    if (i < lines_.columns_seen()) {
      compare(m, cell, i);
    }
  }
  m.indentation = lines_.text(line).find_first_not_of(u" \t");
  m.is_filled_like_most = m.filled * 5 >= habits_.usually_filled() * 4 && m.filled > 1;
  m.fits = does_fit(m, line);
  return m;
}

void LineMeasurer::compare(LineMeasures& m, LineCell const& cell, std::size_t const i) const {
  ColumnHabit const& column = habits_.columns()[i];
  if (ColumnHabits::is_typed(column)) {
    bool const says = cell.kind != CellKind::Missing;
    m.typed += says ? 1U : 0U;
    m.agreements += cell.kind == column.kind ? 1U : 0U;
    m.conflicts += says && cell.kind != column.kind ? 1U : 0U;
    return;
  }
  bool const is_number = cell.kind == CellKind::Number || cell.kind == CellKind::Time;
  m.numbers_among_texts += column.kind == CellKind::Text && is_number ? 1U : 0U;
  if (cell.kind != CellKind::Text) {
    return;
  }
  ++m.compared;
  auto const& texts = texts_[i];
  bool const is_again = texts.find(cell.text)->second > 1;
  m.found_again += is_again ? 1U : 0U;
  m.found_nowhere += !is_again && texts.size() * 3 <= num_texts_[i] * 2 ? 1U : 0U;
  m.odd += ColumnHabits::is_odd(column.texts, cell.text) ? 1U : 0U;
}

bool LineMeasurer::does_fit(LineMeasures const& m, TableLine const& line) const {
  if (line.num_fields <= 1 || m.filled < 2) {
    return false;
  }
  bool const has_kinds = m.typed > 0 ? m.agreements * 3 >= m.typed * 2 : m.compared > 0;
  bool const is_untyped = typed_columns_ == 0;
  return has_kinds && (m.typed > 0 || is_untyped) &&
         (m.is_filled_like_most || m.filled * 2 >= habits_.usually_filled());
}

std::size_t count_words(view const text) noexcept {
  std::size_t words = 0;
  char16_t last = u' ';
  for (char16_t const c : text) {
    words += last == u' ' && c != u' ' ? 1U : 0U;
    last = c;
  }
  return words;
}

}  // namespace textimport::analysis
