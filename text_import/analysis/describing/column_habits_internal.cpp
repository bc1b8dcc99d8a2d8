// SPDX-License-Identifier: MIT
//
// The lower half of the lines that are filled like most tells what the columns hold: in the upper
// half there may be several rows of names.
#include "text_import/analysis/describing/column_habits_internal.hpp"

#include <algorithm>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

bool is_capital(char16_t const c) noexcept {
  return c >= u'A' && c <= u'Z';
}

bool is_small(char16_t const c) noexcept {
  return c >= u'a' && c <= u'z';
}

bool has_digit(view const text) noexcept {
  return std::ranges::any_of(text, textio::platform::is_digit);
}

bool is_in_capitals(view const text) noexcept {
  return std::ranges::any_of(text, is_capital) && std::ranges::none_of(text, is_small);
}

void add_text(TextHabit& habit, view const text) {
  habit.shortest = habit.count == 0 ? text.size() : std::min(habit.shortest, text.size());
  habit.longest = std::max(habit.longest, text.size());
  ++habit.count;
  habit.with_digit += has_digit(text) ? 1U : 0U;
  habit.with_blank += text.find(u' ') != view::npos ? 1U : 0U;
  habit.with_capital_first += is_capital(text.front()) ? 1U : 0U;
  habit.with_small_first += is_small(text.front()) ? 1U : 0U;
  habit.in_capitals += is_in_capitals(text) ? 1U : 0U;
}

/// Nearly all of the texts have the property and this one has not, or the other way round.
bool differs(std::size_t const with, std::size_t const count, bool const has) noexcept {
  return has ? with * 10 <= count : with * 10 >= count * 9;
}

std::size_t median(std::vector<std::size_t> counts) {
  auto const middle = counts.begin() + static_cast<std::ptrdiff_t>(counts.size() / 2);
  std::ranges::nth_element(counts, middle);
  return *middle;
}

CellKind usual_kind(std::array<std::size_t, num_cell_kinds> const& counts,
                    std::size_t const filled) {
  for (CellKind const kind :
       {CellKind::Number, CellKind::Time, CellKind::Boolean, CellKind::Text}) {
    std::size_t const count = counts[static_cast<std::size_t>(kind)];
    if (count > 0 && count * 3 >= filled * 2) {
      return kind;
    }
  }
  return CellKind::Empty;
}

}  // namespace

ColumnHabits::ColumnHabits(TableLines const& lines) : columns_(lines.columns_seen()) {
  auto const& block = lines.reading().block;
  std::vector<TableLine const*> inside;
  std::vector<std::size_t> filled;
  for (TableLine const& line : lines.all()) {
    bool const is_inside = line.record >= block.first && line.record <= block.last;
    if (line.kind == LineKind::Filled && is_inside && line.num_filled > 1) {
      inside.push_back(&line);
      filled.push_back(line.num_filled);
    }
  }
  if (inside.empty()) {
    return;
  }
  usually_filled_ = median(std::move(filled));
  std::erase_if(inside, [this](TableLine const* const line) {
    return line->num_filled * 2 < usually_filled_;
  });
  std::vector<std::array<std::size_t, num_cell_kinds>> counts(columns_.size());
  for (std::size_t i = inside.size() / 2; i < inside.size(); ++i) {
    auto const cells = lines.cells(*inside[i]);
    for (std::size_t column = 0; column < std::min(cells.size(), columns_.size()); ++column) {
      LineCell const& cell = cells[column];
      bool const is_filled = cell.kind != CellKind::Empty && cell.kind != CellKind::Missing;
      columns_[column].filled += is_filled ? 1U : 0U;
      ++counts[column][static_cast<std::size_t>(cell.kind)];
      if (cell.kind == CellKind::Text) {
        add_text(columns_[column].texts, cell.text);
      }
    }
  }
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    columns_[column].kind = usual_kind(counts[column], columns_[column].filled);
  }
}

bool ColumnHabits::is_odd(TextHabit const& habit, view const text) noexcept {
  if (habit.count < 3 || text.empty()) {
    return false;
  }
  bool const is_other_length = text.size() * 2 < habit.shortest || text.size() > habit.longest * 2;
  return is_other_length || differs(habit.with_digit, habit.count, has_digit(text)) ||
         differs(habit.with_blank, habit.count, text.find(u' ') != view::npos) ||
         differs(habit.with_capital_first, habit.count, is_capital(text.front())) ||
         differs(habit.with_small_first, habit.count, is_small(text.front())) ||
         differs(habit.in_capitals, habit.count, is_in_capitals(text));
}

}  // namespace textimport::analysis
