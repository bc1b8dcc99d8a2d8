// SPDX-License-Identifier: MIT
#include "text_import/analysis/describing/header_rows_internal.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

// Records behind a candidate that tell what its columns hold, and the candidates.
constexpr std::size_t records_compared = 60;
constexpr std::size_t candidates = 6;

using positions = std::span<std::size_t const>;

/// The records of the block that have all columns.
std::vector<std::size_t> regular_records_of(Reading const& r) {
  std::vector<std::size_t> records;
  for (std::size_t i = r.block.first; i <= r.block.last; ++i) {
    if (r.records[i].num_fields == r.block.columns) {
      records.push_back(i);
    }
  }
  return records;
}

/// The cells of some records, looked at once.
class CellTable {
 public:
  CellTable(Reading const& r, positions const records)
      : reading_(r), records_(records.begin(), records.end()) {
    for (std::size_t const record : records) {
      add(record);
    }
  }

  struct Cell {
    view text;
    ValueLook look;
  };

  [[nodiscard]] std::size_t rows() const { return records_.size(); }

  [[nodiscard]] std::size_t columns() const { return reading_.block.columns; }

  [[nodiscard]] std::size_t record(std::size_t const row) const { return records_[row]; }

  [[nodiscard]] Cell const& at(std::size_t const row, std::size_t const column) const {
    return cells_[row * columns() + column];
  }

 private:
  void add(std::size_t const record) {
    auto const fields = reading_.strategy->field_array()->record(record);
    for (std::size_t column = 0; column < reading_.block.columns; ++column) {
      view const text = column < fields.size() ? fields[column].view() : view();
      cells_.push_back({reading_.values.value_of(text), reading_.values.look_at_type(text)});
    }
  }

  Reading const& reading_;
  std::vector<std::size_t> records_;
  std::vector<Cell> cells_;
};

/// Kinds of values that a name does not have in common with those below it.
enum class Family : std::uint8_t { None, Number, Time, Boolean };

Family family_of(ValueShape const shape) {
  switch (shape) {
    case ValueShape::Integer:
    case ValueShape::Real:
    case ValueShape::ComplexNumber:
    case ValueShape::Hexadecimal:
    case ValueShape::Binary:
      return Family::Number;
    case ValueShape::Date:
    case ValueShape::DateTime:
    case ValueShape::Duration:
      return Family::Time;
    case ValueShape::Boolean:
      return Family::Boolean;
    default:
      return Family::None;
  }
}

/// The family of most values of a column behind a row. The lower half of the table tells: the upper
/// one may hold more header rows.
Family column_family(CellTable const& table, std::size_t const column, std::size_t const row) {
  std::size_t const first = std::max(row + 1, table.rows() / 2);
  std::array<std::size_t, 4> counts{};
  std::size_t filled = 0;
  for (std::size_t below = first; below < table.rows(); ++below) {
    ValueShape const shape = table.at(below, column).look.shape;
    filled += shape != ValueShape::Empty && shape != ValueShape::Missing ? 1U : 0U;
    ++counts[static_cast<std::size_t>(family_of(shape))];
  }
  auto const most = std::max_element(counts.begin() + 1, counts.end());
  return *most > 0 && *most * 3 >= filled * 2 ? static_cast<Family>(most - counts.begin())
                                              : Family::None;
}

bool is_text(ValueShape const shape) {
  return shape == ValueShape::Word || shape == ValueShape::Phrase || shape == ValueShape::Broken;
}

struct Comparison {
  std::size_t typed_columns = 0;
  std::size_t conflicts = 0;   ///< another value where the column holds numbers, dates ...
  std::size_t agreements = 0;  ///< one of them where it does
};

Comparison compare_with_rest(CellTable const& table, std::size_t const row) {
  Comparison c;
  for (std::size_t column = 0; column < table.columns(); ++column) {
    Family const below = column_family(table, column, row);
    if (below == Family::None) {
      continue;
    }
    ++c.typed_columns;
    ValueShape const shape = table.at(row, column).look.shape;
    if (family_of(shape) == below) {
      ++c.agreements;
    } else if (shape != ValueShape::Empty && shape != ValueShape::Missing) {
      ++c.conflicts;
    }
  }
  return c;
}

bool is_header_by_types(Comparison const& c) {
  return c.conflicts > 0 && c.conflicts * 2 >= c.typed_columns && c.agreements * 3 <= c.conflicts;
}

/// Years or other whole numbers in a row, each one more than the one before it: they name columns.
bool counts_up(CellTable const& table, std::size_t const row) {
  std::size_t steps = 0;
  std::optional<long> last;
  for (std::size_t column = 0; column < table.columns(); ++column) {
    auto const& cell = table.at(row, column);
    bool const is_short_integer = cell.look.shape == ValueShape::Integer && cell.text.size() <= 6;
    std::optional<long> number;
    if (is_short_integer) {
      number = 0;
      for (char16_t const c : cell.text) {
        number = textio::platform::is_digit(c) ? *number * 10 + (c - u'0') : *number;
      }
    }
    if (last && number) {
      if (*number != *last + 1) {
        return false;
      }
      ++steps;
    }
    last = number;
  }
  return steps >= 2;
}

/// A text that is no name: a value such as "12 km", an address, a sentence.
bool is_like_data(view const text) {
  return textio::platform::is_digit(text.front()) || text.size() > 40 ||
         text.find(u"://") != view::npos;
}

/// What speaks for names in a row of a table without typed columns: no cell is empty, twice there,
/// found again further down, or like data.
bool is_header_by_text(CellTable const& table, std::size_t const row) {
  std::set<view> names;
  for (std::size_t column = 0; column < table.columns(); ++column) {
    auto const& cell = table.at(row, column);
    bool const is_name =
        !cell.text.empty() && !is_typed(cell.look.shape) && !is_like_data(cell.text);
    if (!is_name || !names.insert(cell.text).second) {
      return false;
    }
    for (std::size_t below = row + 1; below < table.rows(); ++below) {
      if (table.at(below, column).text == cell.text) {
        return false;
      }
    }
  }
  return true;
}

std::size_t num_filled(CellTable const& table, std::size_t const row) {
  std::size_t filled = 0;
  for (std::size_t column = 0; column < table.columns(); ++column) {
    filled += table.at(row, column).text.empty() ? 0U : 1U;
  }
  return filled;
}

/// Dashes or the like in every cell.
bool is_ruler_row(CellTable const& table, std::size_t const row) {
  for (std::size_t column = 0; column < table.columns(); ++column) {
    if (table.at(row, column).text.find_first_not_of(u"-=_*~:+") != view::npos) {
      return false;
    }
  }
  return num_filled(table, row) > 0;
}

/// The first row that is no title: spreadsheets write a title as a row with one filled cell.
std::size_t skip_titles(CellTable const& table) {
  std::vector<std::size_t> filled;
  for (std::size_t row = 0; row < table.rows(); ++row) {
    filled.push_back(num_filled(table, row));
  }
  std::vector<std::size_t> sorted = filled;
  std::ranges::nth_element(sorted, sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2));
  if (sorted[sorted.size() / 2] < 3) {
    return 0;
  }
  auto const first =
      std::ranges::find_if(filled, [](std::size_t const count) { return count > 1; });
  return static_cast<std::size_t>(first - filled.begin());
}

/// A record between the header and the first regular one is data too when it holds a value that
/// says more than text.
std::size_t first_record_behind(Reading const& r, std::size_t const header,
                                std::size_t const regular) {
  for (std::size_t i = header + 1; i < regular; ++i) {
    auto const fields = r.strategy->field_array()->record(i);
    bool const is_data = fields.size() > 1 && std::ranges::any_of(fields, [&](auto const& field) {
                           return is_typed(r.values.look_at_type(field.view()).shape);
                         });
    if (is_data) {
      return i;
    }
  }
  return regular;
}

/// Whether the row is a note below the data: one filled cell among several columns, or text where
/// all the columns hold numbers, dates ...
bool is_footer(CellTable const& table, std::size_t const row) {
  std::size_t const filled = num_filled(table, row);
  if (filled == 1 && table.columns() > 2) {
    return true;
  }
  std::size_t conflicts = 0;
  for (std::size_t column = 0; column < table.columns(); ++column) {
    Family const above = column_family(table, column, 0);
    ValueShape const shape = table.at(row, column).look.shape;
    conflicts +=
        above != Family::None && family_of(shape) == Family::None && is_text(shape) ? 1U : 0U;
  }
  return conflicts == filled && filled > 1;
}

/// The last record of the data: the last regular one that is no note below them.
std::size_t last_data_record(Reading const& r, positions const regular) {
  constexpr std::size_t most_notes = 5;
  CellTable const table(r, regular.last(std::min(regular.size(), records_compared)));
  std::size_t row = table.rows();
  while (row > 2 && table.rows() - row < most_notes && is_footer(table, row - 1)) {
    --row;
  }
  return table.record(row - 1);
}

}  // namespace

HeaderRows find_header_rows(Reading const& r) {
  std::vector<std::size_t> const regular = regular_records_of(r);
  CellTable const table(
      r, positions(regular).first(std::min(regular.size(), records_compared + candidates)));
  HeaderRows found{r.block.first, r.block.last, std::nullopt};
  if (table.rows() < 2) {
    return found;
  }
  found.last_data = last_data_record(r, regular);
  std::size_t const first = skip_titles(table);
  found.first_data = table.record(std::min(first, table.rows() - 1));
  bool any_typed = false;
  std::optional<std::size_t> first_header;
  std::optional<std::size_t> last_header;
  std::size_t const upper_half = (table.rows() - first + 1) / 2;
  for (std::size_t row = first;
       row < first + std::min(candidates, upper_half) && row + 1 < table.rows(); ++row) {
    Comparison const c = compare_with_rest(table, row);
    any_typed = any_typed || c.typed_columns > 0;
    if (is_header_by_types(c) ||
        (row == first && counts_up(table, row) && !counts_up(table, row + 1))) {
      if (!first_header && !is_ruler_row(table, row)) {
        first_header = row;
      }
      last_header = row;
    }
  }
  if (!any_typed && first + 1 < table.rows() && is_header_by_text(table, first)) {
    first_header = first;
    last_header = first;
  }
  if (last_header) {
    if (first_header) {
      found.names = table.record(*first_header);
    }
    found.first_data =
        first_record_behind(r, table.record(*last_header), table.record(*last_header + 1));
  }
  return found;
}

}  // namespace textimport::analysis
