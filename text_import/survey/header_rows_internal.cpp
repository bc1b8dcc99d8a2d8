// SPDX-License-Identifier: MIT
#include "text_import/survey/header_rows_internal.hpp"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "text_import/survey/value_shape_internal.hpp"

namespace textimport::survey {

namespace {

using view = std::u16string_view;

// Records behind a candidate that tell what its columns hold, and the candidates.
constexpr std::size_t records_compared = 60;
constexpr std::size_t candidates = 6;

/// The cells of a stretch of regular records, looked at once.
class cell_table {
 public:
  explicit cell_table(reading const& r) : reading_(r) {
    for (std::size_t i = r.block.first;
         i <= r.block.last && records_.size() < records_compared + candidates; ++i) {
      if (r.records[i].num_fields == r.block.columns) {
        records_.push_back(i);
        auto const fields = r.strategy->field_array()->record(i);
        for (std::size_t column = 0; column < r.block.columns; ++column) {
          view const text = column < fields.size() ? fields[column].view() : view();
          cells_.push_back({unquoted(text, r.quote), look_at(text, r.quote)});
        }
      }
    }
  }

  struct cell {
    view text;
    value_look look;
  };

  [[nodiscard]] std::size_t rows() const { return records_.size(); }
  [[nodiscard]] std::size_t columns() const { return reading_.block.columns; }
  [[nodiscard]] std::size_t record(std::size_t const row) const { return records_[row]; }

  [[nodiscard]] cell const& at(std::size_t const row, std::size_t const column) const {
    return cells_[row * columns() + column];
  }

 private:
  reading const& reading_;
  std::vector<std::size_t> records_;
  std::vector<cell> cells_;
};

/// Whether most values of a column from a row on say more than text.
bool is_typed_column(cell_table const& table, std::size_t const column, std::size_t const first) {
  std::size_t typed = 0;
  std::size_t filled = 0;
  for (std::size_t row = first; row < table.rows(); ++row) {
    value_shape const shape = table.at(row, column).look.shape;
    filled += shape != value_shape::empty && shape != value_shape::missing ? 1U : 0U;
    typed += is_typed(shape) ? 1U : 0U;
  }
  return typed > 0 && typed * 5 >= filled * 4;
}

struct comparison {
  std::size_t typed_columns = 0;
  std::size_t conflicts = 0;   ///< text where the column holds numbers, dates ...
  std::size_t agreements = 0;  ///< one of them where it does
};

comparison compare_with_rest(cell_table const& table, std::size_t const row) {
  comparison c;
  for (std::size_t column = 0; column < table.columns(); ++column) {
    if (!is_typed_column(table, column, row + 1)) {
      continue;
    }
    ++c.typed_columns;
    value_shape const shape = table.at(row, column).look.shape;
    if (is_typed(shape)) {
      ++c.agreements;
    } else if (shape != value_shape::empty && shape != value_shape::missing) {
      ++c.conflicts;
    }
  }
  return c;
}

bool is_header_by_types(comparison const& c) {
  return c.conflicts > 0 && c.conflicts * 2 >= c.typed_columns && c.agreements * 3 <= c.conflicts;
}

/// What speaks for names in a first row of a table without typed columns.
bool is_header_by_text(cell_table const& table) {
  std::set<view> names;
  std::size_t filled = 0;
  std::size_t recurring = 0;
  std::size_t long_cells = 0;
  std::size_t with_digits = 0;
  for (std::size_t column = 0; column < table.columns(); ++column) {
    auto const& cell = table.at(0, column);
    if (cell.text.empty()) {
      continue;
    }
    ++filled;
    names.insert(cell.text);
    bool recurs = false;
    for (std::size_t row = 1; row < table.rows() && !recurs; ++row) {
      recurs = table.at(row, column).text == cell.text;
    }
    recurring += recurs ? 1U : 0U;
    long_cells += cell.text.size() > 40 ? 1U : 0U;
    with_digits += is_typed(cell.look.shape) || cell.text.find_first_of(u"0123456789") != view::npos ? 1U : 0U;
  }
  return filled == table.columns() && names.size() == filled && recurring == 0 && long_cells == 0 &&
         with_digits * 2 < filled;
}

}  // namespace

header_rows find_header_rows(reading const& r) {
  cell_table const table(r);
  header_rows found{r.block.first, std::nullopt};
  if (table.rows() < 2) {
    return found;
  }
  bool any_typed = false;
  std::optional<std::size_t> last_header;
  for (std::size_t row = 0; row < std::min(candidates, table.rows() - 1); ++row) {
    comparison const c = compare_with_rest(table, row);
    any_typed = any_typed || c.typed_columns > 0;
    if (is_header_by_types(c)) {
      last_header = row;
    }
  }
  if (!any_typed && is_header_by_text(table)) {
    last_header = 0;
  }
  if (last_header) {
    found.names = table.record(*last_header);
    found.first_data = table.record(*last_header + 1);
  }
  return found;
}

}  // namespace textimport::survey
