// SPDX-License-Identifier: MIT
//
// First each line is measured for itself and against the habits of the columns, then the measures
// of neighbours become features too.
#include "text_import/analysis/describing/line_features_internal.hpp"

#include <algorithm>
#include <map>
#include <set>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/describing/column_habits_internal.hpp"
#include "text_import/analysis/describing/role_words_internal.hpp"
#include "text_import/analysis/describing/row_sums_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;
using enum LineFeature;

/// What is counted of one line.
struct Measures {
  std::size_t cells = 0;
  std::size_t filled = 0;
  std::size_t gaps = 0;
  std::size_t numbers = 0;
  std::size_t years = 0;
  std::size_t year_texts = 0;
  std::size_t in_brackets = 0;
  std::size_t steps_up = 0;
  bool counts_up = true;
  bool has_decimals = false;
  std::size_t texts = 0;
  std::size_t words = 0;
  std::size_t identifiers = 0;
  std::size_t repeated = 0;
  std::size_t longest = 0;
  bool has_unit = false;
  bool has_address = false;
  bool has_sentence = false;
  bool first_is_empty = false;
  view first_text;  ///< of the first filled cell
  std::size_t indentation = 0;
  // Against the columns.
  std::size_t typed = 0;
  std::size_t agreements = 0;
  std::size_t conflicts = 0;
  std::size_t numbers_among_texts = 0;
  std::size_t found_again = 0;
  std::size_t found_nowhere = 0;
  std::size_t compared = 0;
  std::size_t odd = 0;
  std::vector<CellKind> kinds;
  bool fits = false;
  bool is_filled_like_most = false;
};

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

std::size_t num_words(view const text) noexcept {
  std::size_t words = 0;
  char16_t last = u' ';
  for (char16_t const c : text) {
    words += last == u' ' && c != u' ' ? 1U : 0U;
    last = c;
  }
  return words;
}

/// What stands in the columns, text by text, and in how many lines.
using ColumnTexts = std::vector<std::map<view, std::size_t>>;

/// Measures the lines of a table.
class LineJudge {
 public:
  LineJudge(TableLines const& lines, bool const sees_end)
      : lines_(lines), habits_(lines), sees_end_(sees_end) {
    for (TableLine const& line : lines.all()) {
      if (line.kind == LineKind::Filled) {
        filled_.push_back(&line);
        num_irregular_ += line.num_fields != lines.columns() && line.num_fields > 1 ? 1U : 0U;
      }
    }
  }

  std::vector<JudgedLine> run() {
    count_texts();
    for (TableLine const* const line : filled_) {
      measures_.push_back(measure(*line));
    }
    sums_ = find_row_sums(lines_, filled_);
    find_fitting();
    for (std::size_t i = 0; i < filled_.size(); ++i) {
      judge(i);
    }
    return std::move(judged_);
  }

 private:
  void count_texts() {
    texts_.resize(lines_.columns_seen());
    values_.resize(lines_.columns_seen());
    for (TableLine const* const line : filled_) {
      auto const cells = lines_.cells(*line);
      for (std::size_t i = 0; i < std::min(cells.size(), texts_.size()); ++i) {
        if (cells[i].kind == CellKind::Text) {
          ++texts_[i][cells[i].text];
          ++values_[i];
        }
        years_ += cells[i].kind == CellKind::Number && is_year(cells[i].text) ? 1U : 0U;
        numbers_ += cells[i].kind == CellKind::Number ? 1U : 0U;
      }
    }
  }

  [[nodiscard]] Measures measure(TableLine const& line) const {
    Measures m;
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

  static std::int64_t add_number(Measures& m, LineCell const& cell,
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

  static void add_text(Measures& m, LineCell const& cell) {
    ++m.texts;
    m.year_texts += holds_year(cell.text) ? 1U : 0U;
    m.words += cell.is_word ? 1U : 0U;
    m.identifiers += is_identifier(cell.text) ? 1U : 0U;
    m.has_unit = m.has_unit || begins_with_one_of(cell.text, unit_words);
    m.has_address = m.has_address || cell.text.find(u"://") != view::npos ||
                    cell.text.find(u"www.") != view::npos;
    m.has_sentence = m.has_sentence || cell.text.find(u". ") != view::npos;
  }

  void compare(Measures& m, LineCell const& cell, std::size_t const i) const {
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
    m.found_nowhere += !is_again && texts.size() * 3 <= values_[i] * 2 ? 1U : 0U;
    m.odd += ColumnHabits::is_odd(column.texts, cell.text) ? 1U : 0U;
  }

  [[nodiscard]] bool does_fit(Measures const& m, TableLine const& line) const {
    if (line.num_fields <= 1 || m.filled < 2) {
      return false;
    }
    bool const has_kinds = m.typed > 0 ? m.agreements * 3 >= m.typed * 2 : m.compared > 0;
    bool const is_untyped = std::ranges::none_of(
        habits_.columns(), [](auto const& c) { return ColumnHabits::is_typed(c); });
    return has_kinds && (m.typed > 0 || is_untyped) &&
           (m.is_filled_like_most || m.filled * 2 >= habits_.usually_filled());
  }

  void find_fitting() {
    first_fitting_ = filled_.size();
    for (std::size_t i = 0; i < filled_.size(); ++i) {
      if (measures_[i].fits) {
        first_fitting_ = std::min(first_fitting_, i);
        last_fitting_ = i;
      }
    }
  }

  void judge(std::size_t const i) {
    JudgedLine line;
    line.position = static_cast<std::size_t>(filled_[i] - lines_.all().data());
    now_ = &line.features;
    add(true, Always);
    judge_filling(measures_[i]);
    judge_fields(*filled_[i]);
    judge_kinds(measures_[i]);
    judge_numbers(measures_[i]);
    judge_first_text(measures_[i]);
    judge_texts(measures_[i]);
    judge_place(i, line);
    judge_neighbours(i);
    judged_.push_back(std::move(line));
  }

  void add(bool const is_there, LineFeature const feature) {
    if (is_there) {
      now_->push_back(feature);
    }
  }

  void judge_filling(Measures const& m) {
    std::size_t const columns = lines_.columns_seen();
    add(m.filled == 1 && !m.first_is_empty && columns > 2, OneCellFirst);
    add(m.filled == 1 && columns <= 2, OneCellOfTwo);
    add(m.filled == 1 && m.first_is_empty && columns > 2, OneCellOther);
    add(m.filled == 2 && columns > 3, TwoCells);
    add(m.filled >= columns, AllCells);
    add(m.filled < columns && m.filled * 2 > columns, MostCells);
    add(m.filled > 2 && m.filled * 2 <= columns, FewCells);
    add(m.is_filled_like_most, FilledLikeMost);
    add(m.filled * 2 < habits_.usually_filled(), FilledLess);
    add(m.first_is_empty, FirstEmpty);
    add(m.gaps > 0, Gaps);
  }

  void judge_fields(TableLine const& line) {
    bool const is_delimited = lines_.reading().layout == Layout::Delimited;
    std::size_t const columns = lines_.columns();
    add(line.num_fields + 1 == columns && line.num_fields > 1, ShortByOne);
    add(line.num_fields + 1 < columns && line.num_fields > 1, ShortRow);
    add(line.num_fields > columns, LongRow);
    add(line.num_fields == columns, RegularRow);
    auto const& block = lines_.reading().block;
    bool const are_ragged = num_irregular_ * 5 > filled_.size();
    add(line.num_fields != columns && line.num_fields > 1 && are_ragged, RaggedRow);
    add(line.record < block.first, BeforeBlock);
    add(line.record == block.first, FirstOfBlock);
    add(line.record > block.last, BehindBlock);
    add(line.num_fields <= 1 && is_delimited, Undivided);
    add(line.num_fields <= 1 && !is_delimited, UndividedAligned);
  }

  void judge_kinds(Measures const& m) {
    std::size_t const typed_columns = static_cast<std::size_t>(std::ranges::count_if(
        habits_.columns(), [](auto const& c) { return ColumnHabits::is_typed(c); }));
    add(typed_columns == 0, UntypedTable);
    add(typed_columns * 2 > lines_.columns_seen(), MostlyTypedTable);
    add(m.typed > 0 && m.agreements == m.typed, KindsAll);
    add(m.agreements < m.typed && m.agreements * 3 >= m.typed * 2, KindsMost);
    add(m.agreements > 0 && m.agreements * 3 < m.typed * 2, KindsSome);
    add(m.agreements == 0 && typed_columns > 0, KindsNone);
    add(m.conflicts > 0 && m.conflicts == m.typed, ConflictsAll);
    add(m.conflicts < m.typed && m.conflicts * 2 >= m.typed, ConflictsMost);
    add(m.conflicts > 0 && m.conflicts * 2 < m.typed, ConflictsSome);
    add(m.numbers_among_texts > 0, NumberAmongTexts);
  }

  void judge_numbers(Measures const& m) {
    add(m.numbers == 0, NoNumbers);
    add(m.numbers == 1, OneNumber);
    add(m.numbers > 1 && m.numbers * 2 > m.filled, MostlyNumbers);
    bool const are_years = m.numbers > 0 && m.years == m.numbers;
    add(are_years, AllYears);
    add(m.steps_up >= 2 && m.counts_up, CountsUp);
    add(are_years && (years_ - m.years) * 10 > numbers_ - m.numbers, YearsAreUsual);
    add(m.year_texts > 1, YearTexts);
    add(m.has_decimals, Decimals);
  }

  void judge_first_text(Measures const& m) {
    view const text = m.first_text;
    std::size_t const words = num_words(text);
    add(words > 6, ManyWords);
    add(words > 2 && words <= 6, SomeWords);
    add(text.ends_with(u'.') && words > 1, EndsSentence);
    add(text.ends_with(u':'), EndsColon);
    bool const has_mark = text.find_first_of(u"*\\[\u2020") == 0 ||
                          (textio::platform::is_digit(text.front()) && text.size() > 2 &&
                           (text[1] == u')' || text[1] == u'/' || text[1] == u']'));
    add(has_mark, NoteMark);
    std::size_t const digits = textio::platform::leading_digits(text);
    add(digits > 0 && digits <= 2 && digits + 1 < text.size() &&
            (text[digits] == u' ' || text[digits] == u'.') && words > 1,
        Numbered);
    add(begins_with_one_of(text, total_words), TotalWord);
    add(begins_with_one_of(text, note_words), NoteWord);
    add(begins_with_one_of(text, title_words), TitleWord);
    add(text.starts_with(u'(') && text.ends_with(u')'), InBrackets);
    add(text.front() >= u'a' && text.front() <= u'z', SmallFirst);
    bool const has_small =
        std::ranges::any_of(text, [](char16_t c) { return c >= u'a' && c <= u'z'; });
    bool const has_capital =
        std::ranges::any_of(text, [](char16_t c) { return c >= u'A' && c <= u'Z'; });
    add(has_capital && !has_small && text.size() > 2, Capitals);
    add(text.find_first_of(u"#%!;") == 0 || text.starts_with(u"//") || text.starts_with(u"--"),
        CommentSign);
  }

  void judge_texts(Measures const& m) {
    add(m.longest > 30, LongText);
    add(m.longest > 80, VeryLongText);
    add(m.has_sentence, HoldsSentence);
    add(m.has_address, Address);
    add(m.has_unit, UnitWord);
    add(m.texts > 1 && m.repeated == 0, DistinctTexts);
    add(m.repeated > 0, RepeatedTexts);
    add(m.in_brackets > 1 && m.in_brackets * 2 >= m.filled, BracketCells);
    add(m.texts > 1 && m.words == m.texts, WordsOnly);
    add(m.texts > 1 && m.identifiers == m.texts, Identifiers);
    add(m.found_again > 0, FoundAgain);
    add(m.found_nowhere > 0, FoundNowhere);
    add(m.odd == 1, OddOne);
    add(m.odd > 1, OddMany);
    add(m.odd == 0 && m.compared > 0, OddNone);
  }

  void judge_place(std::size_t const i, JudgedLine& line) {
    std::size_t const from_end = filled_.size() - i;
    add(i == 0, FirstLine);
    add(i == 1, SecondLine);
    add(i >= 2 && i <= 4, ThirdLine);
    add(i >= 10, LaterLine);
    add(sees_end_ && from_end == 1, LastLine);
    add(sees_end_ && from_end > 1 && from_end <= 4, NearEnd);
    std::size_t blanks = 0;
    bool ruler = false;
    bool comment = false;
    for (TableLine const* at = filled_[i]; at != lines_.all().data();) {
      --at;
      if (at->kind == LineKind::Filled) {
        break;
      }
      blanks += at->kind == LineKind::Blank ? 1U : 0U;
      ruler = ruler || at->kind == LineKind::Ruler;
      comment = comment || at->kind == LineKind::Comment;
    }
    line.blank_before = blanks > 0;
    add(blanks > 0, BlankBefore);
    add(blanks > 1, BlanksBefore);
    add(ruler, RulerBefore);
    add(comment, CommentBefore);
    TableLine const* const behind = filled_[i] + 1;
    bool const is_last = behind == lines_.all().data() + lines_.all().size();
    add(!is_last && behind->kind == LineKind::Blank, BlankBehind);
    add(!is_last && behind->kind == LineKind::Ruler, RulerBehind);
    std::size_t const next_indentation = i + 1 < filled_.size() ? measures_[i + 1].indentation : 0;
    add(measures_[i].indentation > 0, Indented);
    add(measures_[i].indentation < next_indentation, LessIndented);
    add(measures_[i].fits, Fits);
    add(i < first_fitting_, BeforeFitting);
    add(i > last_fitting_, BehindFitting);
    add(sums_[i].of_above, SumAbove);
    add(sums_[i].of_below, SumBelow);
  }

  void judge_neighbours(std::size_t const i) {
    if (i + 1 < filled_.size()) {
      judge_neighbour(measures_[i + 1], NextOneCell);
      add(measures_[i + 1].fits, NextFits);
      judge_next_ones(i);
      add(measures_[i].kinds == measures_[i + 1].kinds, LikeNext);
    }
    if (i > 0) {
      judge_neighbour(measures_[i - 1], LastOneCell);
      add(measures_[i - 1].fits, LastFits);
      add(measures_[i].kinds == measures_[i - 1].kinds, LikeLast);
    }
  }

  void judge_next_ones(std::size_t const i) {
    constexpr std::size_t run = 4;
    constexpr std::size_t soon = 12;
    std::size_t const end = filled_.size();
    bool fit = i + 1 < end;
    bool text = false;
    for (std::size_t next = i + 1; next < std::min(end, i + 1 + soon); ++next) {
      fit = fit && (next > i + run || measures_[next].fits);
      text = text || filled_[next]->num_fields <= 1;
    }
    add(fit, RunBehind);
    add(text, TextSoon);
  }

  /// `first`: the first of the features of this neighbour, which stand in the same order for both.
  void judge_neighbour(Measures const& m, LineFeature const first) {
    auto const feature = [first](std::size_t const i) {
      return static_cast<LineFeature>(static_cast<std::size_t>(first) + i);
    };
    add(m.filled == 1, feature(0));
    add(m.typed > 0 && m.agreements * 3 >= m.typed * 2, feature(1));
    add(m.conflicts > 0 && m.conflicts * 2 >= m.typed, feature(2));
    add(m.numbers > 0 && m.years == m.numbers, feature(3));
    add(m.first_is_empty, feature(4));
    add(m.longest > 30, feature(5));
    add(m.is_filled_like_most, feature(6));
  }

  TableLines const& lines_;
  ColumnHabits habits_;
  bool sees_end_;
  std::vector<TableLine const*> filled_;
  ColumnTexts texts_;
  std::vector<std::size_t> values_;
  std::size_t years_ = 0;
  std::size_t numbers_ = 0;
  std::vector<Measures> measures_;
  std::vector<RowSums> sums_;
  std::size_t first_fitting_ = 0;
  std::size_t last_fitting_ = 0;
  std::size_t num_irregular_ = 0;
  std::vector<JudgedLine> judged_;
  std::vector<LineFeature>* now_ = nullptr;
};

}  // namespace

std::vector<JudgedLine> judge_lines(TableLines const& lines, bool const sees_end) {
  return LineJudge(lines, sees_end).run();
}

}  // namespace textimport::analysis
