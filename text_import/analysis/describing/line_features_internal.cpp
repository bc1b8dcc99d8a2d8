// SPDX-License-Identifier: MIT
//
// First each line is measured for itself and against the habits of the columns, then the measures
// of neighbours become features too.
#include "text_import/analysis/describing/line_features_internal.hpp"

#include <algorithm>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/describing/line_measures_internal.hpp"
#include "text_import/analysis/describing/role_words_internal.hpp"
#include "text_import/analysis/describing/row_sums_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;
using enum LineFeature;

std::vector<TableLine const*> filled_lines(TableLines const& lines) {
  std::vector<TableLine const*> filled;
  for (TableLine const& line : lines.all()) {
    if (line.kind == LineKind::Filled) {
      filled.push_back(&line);
    }
  }
  return filled;
}

/// Lines of several cells, but not as many as the table has columns.
std::size_t count_irregular(TableLines const& lines, std::vector<TableLine const*> const& filled) {
  return static_cast<std::size_t>(std::ranges::count_if(filled, [&](TableLine const* const line) {
    return line->num_fields > 1 && line->num_fields != lines.columns();
  }));
}

/// Makes features of what is measured, line by line.
class LineJudge {
 public:
  LineJudge(TableLines const& lines, bool const sees_end)
      : lines_(lines),
        sees_end_(sees_end),
        filled_(filled_lines(lines)),
        measurer_(lines, filled_),
        num_irregular_(count_irregular(lines, filled_)) {}

  std::vector<JudgedLine> run() {
    for (TableLine const* const line : filled_) {
      measures_.push_back(measurer_.measure(*line));
    }
    sums_ = find_row_sums(lines_, filled_);
    find_fitting();
    for (std::size_t i = 0; i < filled_.size(); ++i) {
      judge(i);
    }
    return std::move(judged_);
  }

 private:
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
    constexpr std::size_t usual_number = 48;
    line.features.reserve(usual_number);
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

  void judge_filling(LineMeasures const& m) {
    std::size_t const columns = lines_.columns_seen();
    add(m.filled == 1 && !m.first_is_empty && columns > 2, OneCellFirst);
    add(m.filled == 1 && columns <= 2, OneCellOfTwo);
    add(m.filled == 1 && m.first_is_empty && columns > 2, OneCellOther);
    add(m.filled == 2 && columns > 3, TwoCells);
    add(m.filled >= columns, AllCells);
    add(m.filled < columns && m.filled * 2 > columns, MostCells);
    add(m.filled > 2 && m.filled * 2 <= columns, FewCells);
    add(m.is_filled_like_most, FilledLikeMost);
    add(m.filled * 2 < measurer_.habits().usually_filled(), FilledLess);
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

  void judge_kinds(LineMeasures const& m) {
    std::size_t const typed_columns = measurer_.typed_columns();
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

  void judge_numbers(LineMeasures const& m) {
    add(m.numbers == 0, NoNumbers);
    add(m.numbers == 1, OneNumber);
    add(m.numbers > 1 && m.numbers * 2 > m.filled, MostlyNumbers);
    bool const are_years = m.numbers > 0 && m.years == m.numbers;
    add(are_years, AllYears);
    add(m.steps_up >= 2 && m.counts_up, CountsUp);
    bool const are_usual = (measurer_.years() - m.years) * 10 > measurer_.numbers() - m.numbers;
    add(are_years && are_usual, YearsAreUsual);
    add(are_years && !are_usual && m.numbers > 1 && m.agreements > 0, YearRow);
    add(m.year_texts > 1, YearTexts);
    add(m.has_decimals, Decimals);
  }

  void judge_first_text(LineMeasures const& m) {
    view const text = m.first_text;
    std::size_t const words = count_words(text);
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
    add(begins_with_one_of<total_words>(text), TotalWord);
    add(begins_with_one_of<note_words>(text), NoteWord);
    add(begins_with_one_of<title_words>(text), TitleWord);
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

  void judge_texts(LineMeasures const& m) {
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
  void judge_neighbour(LineMeasures const& m, LineFeature const first) {
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
  bool sees_end_;
  std::vector<TableLine const*> filled_;
  LineMeasurer measurer_;
  std::size_t num_irregular_;
  std::vector<LineMeasures> measures_;
  std::vector<RowSums> sums_;
  std::size_t first_fitting_ = 0;
  std::size_t last_fitting_ = 0;
  std::vector<JudgedLine> judged_;
  std::vector<LineFeature>* now_ = nullptr;  ///< those of the line that is judged
};

}  // namespace

std::vector<JudgedLine> judge_lines(TableLines const& lines, bool const sees_end) {
  return LineJudge(lines, sees_end).run();
}

}  // namespace textimport::analysis
