// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/borders_internal.hpp"

#include <algorithm>
#include <array>
#include <string_view>

#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/splitting/rulers_internal.hpp"

namespace textimport::analysis {

namespace {

using splitting::bars;
using view = std::u16string_view;

std::size_t count_bars(view const line) {
  return static_cast<std::size_t>(
      std::ranges::count_if(line, [](char16_t const c) { return bars.find(c) != view::npos; }));
}

bool is_bordered(view const line) {
  return line.size() >= 3 && bars.find(line.front()) != view::npos && line.front() == line.back();
}

class BorderSearch {
 public:
  BorderSearch(LineIndex const& lines, std::size_t const end) : lines_(lines), end_(end) {}

  std::optional<Borders> run() {
    for (std::size_t i = 0; i < end_; ++i) {
      look_at(i);
    }
    Borders found;
    // One column needs no delimiter; and a table has a line of names or a second record.
    found.has_outer_bars = bordered_ >= 2 && inner_ > 0 && bordered_ * 5 >= barred_ * 4;
    found.has_rulers = found.has_outer_bars ? rulers_ > 0 : fitting_rulers_ > 0;
    if (!found.has_outer_bars && !found.has_rulers) {
      return std::nullopt;
    }
    for (std::size_t i = 0; i < bars.size(); ++i) {
      if (counts_.at(i) > 0) {
        found.bars.emplace_back(1, bars[i]);
      }
    }
    std::ranges::stable_sort(found.bars, [&](auto const& a, auto const& b) {
      return counts_.at(bars.find(a.front())) > counts_.at(bars.find(b.front()));
    });
    return found.bars.empty() ? std::nullopt : std::optional(found);
  }

 private:
  void look_at(std::size_t const i) {
    view const line = trimmed(lines_[i]);
    if (line.empty()) {
      return;
    }
    bool const may_be_ruler = splitting::is_stroke(line.back()) ||
                              splitting::is_joint(line.back()) || line.back() == u':';
    if (may_be_ruler && splitting::is_ruler(line)) {
      take_ruler(i, line);
      return;
    }
    std::size_t const held = count_bars(line);
    if (held == 0) {
      return;
    }
    ++barred_;
    if (is_bordered(line)) {
      ++bordered_;
      inner_ += held - 2;
    }
    for (char16_t const c : line) {
      if (std::size_t const bar = bars.find(c); bar != view::npos) {
        ++counts_.at(bar);
      }
    }
  }

  /// A ruler fits where it crosses the bars of the line above or below it.
  void take_ruler(std::size_t const i, view const line) {
    auto const joints = static_cast<std::size_t>(std::ranges::count_if(line, splitting::is_joint));
    if (joints == 0) {
      return;
    }
    ++rulers_;
    auto const is_crossed = [&](std::size_t const other) {
      return count_bars(lines_[other]) == joints && !splitting::is_ruler(lines_[other]);
    };
    fitting_rulers_ +=
        (i > 0 && is_crossed(i - 1)) || (i + 1 < end_ && is_crossed(i + 1)) ? 1U : 0U;
  }

  LineIndex const& lines_;
  std::size_t end_;
  std::size_t bordered_ = 0;
  std::size_t barred_ = 0;
  std::size_t inner_ = 0;
  std::size_t rulers_ = 0;
  std::size_t fitting_rulers_ = 0;
  std::array<std::size_t, bars.size()> counts_{};
};

}  // namespace

std::optional<Borders> find_borders(LineIndex const& lines, std::size_t const end) {
  return BorderSearch(lines, end).run();
}

}  // namespace textimport::analysis
