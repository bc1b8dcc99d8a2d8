// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/fixed_widths_internal.hpp"

#include <algorithm>
#include <optional>
#include <utility>

#include "text_import/analysis/values/text_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;
using Starts = std::vector<std::size_t>;

bool is_ruler_sign(char16_t const c) {
  return view(u"-=_~+*").find(c) != view::npos;
}

/// A line of nothing but rules and blanks, however long.
bool is_ruler(view const line) {
  view const text = trimmed(line);
  return text.size() >= 3 && std::ranges::all_of(text, [](char16_t const c) {
           return is_ruler_sign(c) || c == u' ' || c == u'|' || c == u':';
         });
}

/// Where the parts of a ruler begin, the first column at 0; one part or none: it parts nothing.
Starts starts_of_ruler(view const line) {
  Starts starts{0};
  bool in_part = false;
  bool is_first = true;
  for (std::size_t pos = 0; pos < line.size(); ++pos) {
    bool const is_part = line[pos] != u' ';
    if (is_part && !in_part && !std::exchange(is_first, false)) {
      starts.push_back(pos);
    }
    in_part = is_part;
  }
  return starts;
}

/// Where the bars of a line stand that begins and ends with one.
Starts starts_of_bars(view const line) {
  view const text = trimmed(line);
  Starts starts;
  if (text.size() < 3 || text.front() != u'|' || text.back() != u'|') {
    return starts;
  }
  for (std::size_t pos = 0; pos < line.size(); ++pos) {
    if (line[pos] == u'|') {
      starts.push_back(pos);
    }
  }
  starts.pop_back();
  starts.front() = 0;
  return starts;
}

/// Whether most of the lines have blanks in front of the places where columns begin.
bool are_parted(std::vector<view> const& lines, Starts const& starts) {
  std::size_t parted = 0;
  for (view const line : lines) {
    parted += std::ranges::all_of(starts, [&](std::size_t const start) {
      return start == 0 || start >= line.size() || line[start - 1] == u' ' || line[start] == u' ';
    });
  }
  return parted * 4 >= lines.size() * 3;
}

/// Lines with a filled place where nearly all others have a blank are titles and notes.
std::vector<view> without_strangers(std::vector<view> const& lines, ColumnProfile const& profile) {
  std::size_t const few = lines.size() / 10 + 1;
  Starts const starts = profile.starts_behind_blanks(few);
  std::vector<view> left;
  for (view const line : lines) {
    bool const is_stranger = std::ranges::any_of(starts, [&](std::size_t const start) {
      return start > 0 && start < line.size() && line[start - 1] != u' ';
    });
    if (!is_stranger) {
      left.push_back(line);
    }
  }
  return left;
}

class ColumnFinder {
 public:
  ColumnFinder(LineIndex const& lines, view const marker)
      : lines_(lines), marker_(marker), end_(std::min(lines.count(), lines_profiled)) {}

  std::vector<FixedColumns> run() {
    find_by_ruler();
    std::vector<view> const all = filled_lines(0);
    if (all.size() < 2) {
      return std::move(found_);
    }
    ColumnProfile const profile(all);
    add(profile, profile.starts_behind_blanks(all.size() / 50));
    if (auto const left = without_strangers(all, profile); left.size() < all.size()) {
      add_by_blanks(left);
    }
    add_clearer_end(profile);
    if (found_.empty() && profile.usual_length() >= shortest_touching) {
      add(profile, profile.starts_of_digits());
      for (FixedColumns& columns : found_) {
        columns.are_touching = true;
      }
    }
    return std::move(found_);
  }

 private:
  static constexpr std::size_t shortest_touching = 40;
  static constexpr std::size_t most = 3;

  /// Those that are neither blank nor a comment nor a ruler, as far as lines are profiled.
  [[nodiscard]] std::vector<view> filled_lines(std::size_t const first) const {
    std::vector<view> filled;
    for (std::size_t i = first; i < end_; ++i) {
      view const line = lines_[i];
      bool const is_comment = !marker_.empty() && line.starts_with(marker_);
      if (!trimmed(line).empty() && !is_comment && !is_ruler(line)) {
        filled.push_back(line);
      }
    }
    return filled;
  }

  /// Titles stand at the top, so that the end of the text may show columns better than all of it.
  void add_clearer_end(ColumnProfile const& whole) {
    for (std::size_t const first : {end_ / 2, end_ * 2 / 3}) {
      auto const lines = filled_lines(first);
      if (lines.size() >= 4 && lines.size() < whole.num_lines()) {
        ColumnProfile const profile(lines);
        if (profile.agreement() > whole.agreement() + 0.1) {
          add(profile, profile.starts_behind_blanks(lines.size() / 50));
        }
      }
    }
  }

  void add_by_blanks(std::vector<view> const& lines) {
    if (lines.size() >= 2) {
      ColumnProfile const profile(lines);
      add(profile, profile.starts_behind_blanks(lines.size() / 50));
    }
  }

  void find_by_ruler() {
    for (std::size_t i = 0; i < end_ && found_.empty(); ++i) {
      Starts const starts =
          is_ruler(lines_[i]) ? starts_of_ruler(lines_[i]) : starts_of_bars(lines_[i]);
      if (starts.size() >= 2) {
        auto const below = filled_lines(i + 1);
        if (!below.empty() && are_parted(below, starts)) {
          add(ColumnProfile(below), starts);
          found_.back().by_ruler = true;
        }
      }
    }
  }

  void add(ColumnProfile profile, Starts starts) {
    auto const is_same = [&](FixedColumns const& other) { return other.starts == starts; };
    if (starts.size() >= 2 && found_.size() < most && std::ranges::none_of(found_, is_same)) {
      found_.push_back({std::move(profile), std::move(starts)});
    }
  }

  LineIndex const& lines_;
  view marker_;
  std::size_t end_;
  std::vector<FixedColumns> found_;
};

}  // namespace

std::vector<std::size_t> FixedColumns::widths() const {
  std::vector<std::size_t> widths;
  for (std::size_t i = 1; i < starts.size(); ++i) {
    widths.push_back(starts[i] - starts[i - 1]);
  }
  widths.push_back(std::max(profile.longest(), starts.back() + 1) - starts.back());
  return widths;
}

double FixedColumns::head_agreement() const noexcept {
  return profile.agreement_before(std::min(starts.back(), profile.longest()));
}

double FixedColumns::head_share() const noexcept {
  std::size_t const length = std::max<std::size_t>(profile.usual_length(), 1);
  return static_cast<double>(std::min(starts.back(), length)) / static_cast<double>(length);
}

bool FixedColumns::fits(view const line) const noexcept {
  if (starts.size() > 1 && line.size() <= starts[1]) {
    return false;
  }
  std::size_t torn = 0;
  for (std::size_t const start : starts) {
    bool const is_inside = start > 0 && start < line.size();
    torn += is_inside && line[start - 1] != u' ' && line[start] != u' ' ? 1U : 0U;
  }
  bool const is_ragged = profile.equal_lengths() < 0.5;
  return (are_touching || torn * 8 <= starts.size()) &&
         profile.fits(line, is_ragged ? starts.back() : profile.longest());
}

FixedColumns single_column(LineIndex const& lines) {
  std::vector<view> all;
  for (std::size_t i = 0; i < std::min(lines.count(), lines_profiled); ++i) {
    all.push_back(lines[i]);
  }
  return {ColumnProfile(all), {0}};
}

std::vector<FixedColumns> find_fixed_columns(LineIndex const& lines, view const marker) {
  return ColumnFinder(lines, marker).run();
}

}  // namespace textimport::analysis
