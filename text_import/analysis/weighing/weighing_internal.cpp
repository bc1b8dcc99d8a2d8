// SPDX-License-Identifier: MIT
//
// A conditional logit model: the share of a reading is the exponential of its score over the sum
// of those of all (McFadden, Conditional logit analysis of qualitative choice behavior, 1973).
#include "text_import/analysis/weighing/weighing_internal.hpp"

#include <algorithm>
#include <cmath>

#include "text_import/analysis/readings/reading_options.hpp"
#include "text_import/analysis/readings/value_measures_internal.hpp"
#include "text_import/analysis/weighing/measures_internal.hpp"
#include "text_import/analysis/weighing/weights_internal.hpp"

namespace textimport::analysis {

namespace {

// No answer is surer: there are texts that nobody could read.
constexpr double surest = 0.99;

/// The exponential of a number that is not above 0, with the same bits on every machine: the
/// library's own may differ in the last. A power of two times a Taylor polynomial.
double exponential(double const x) {
  constexpr double log_of_2 = 0.6931471805599453;
  if (x < -60) {
    return 0;
  }
  double const twos = std::floor(x / log_of_2);
  double const rest = x - twos * log_of_2;
  double sum = 1;
  for (int i = 14; i > 0; --i) {
    sum = 1 + sum * rest / i;
  }
  return std::ldexp(sum, static_cast<int>(twos));
}

bool splits_alike(Reading const& a, Reading const& b) {
  return a.layout == b.layout && a.delimiter == b.delimiter;
}

bool may_be_table(Reading const& r) {
  return r.block.columns >= 2 && r.block.regular > 0;
}

double fit_of(Reading const& r) {
  return r.coverage * r.soundness;
}

class Weigher {
 public:
  Weigher(std::vector<Reading> const& readings, LineIndex const& lines,
          textio::GenericStrategy const* const engine_decision)
      : readings_(readings), traits_(find_text_traits(lines)), engine_(engine_decision) {
    result_.scores.resize(readings.size() + 1);
  }

  Weighing run(bool const is_bound) {
    for (std::size_t i = 0; i < readings_.size(); ++i) {
      result_.scores[i].is_table = readings_[i].filled_columns >= 2;
      if (result_.scores[i].is_table) {
        set_score(result_.scores[i], alternative_of(readings_[i]));
      }
    }
    result_.scores.back().is_table = true;
    set_score(result_.scores.back(), lines_alternative());
    set_shares();
    choose(is_bound);
    if (!result_.winner && is_bound && !readings_.empty()) {
      result_.winner = best_fit();
    }
    return std::move(result_);
  }

 private:
  [[nodiscard]] Alternative alternative_of(Reading const& r) const {
    bool const agrees =
        engine_ != nullptr && layout_of(engine_->mode()) == r.layout &&
        (r.layout != Layout::Delimited || engine_->options().delimiters.front() == r.delimiter);
    return {&r, kind_of(r), rivals_of(&r), agrees, r.hypothesis != 0, &traits_};
  }

  [[nodiscard]] Alternative lines_alternative() const {
    bool const agrees = engine_ != nullptr && layout_of(engine_->mode()) == Layout::Lines;
    return {nullptr, ReadingKind::Lines, rivals_of(nullptr), agrees, false, &traits_};
  }

  [[nodiscard]] Rivals rivals_of(Reading const* const reading) const {
    Rivals rivals;
    for (Reading const& r : readings_) {
      if (r.filled_columns >= 2 && (reading == nullptr || !splits_alike(r, *reading))) {
        add_rival(rivals, r);
      }
    }
    return rivals;
  }

  static void add_rival(Rivals& rivals, Reading const& r) {
    double const fit = fit_of(r);
    switch (kind_of(r)) {
      case ReadingKind::Usual:
        rivals.usual = std::max(rivals.usual, fit);
        rivals.tab = r.delimiter == u"\t" ? std::max(rivals.tab, fit) : rivals.tab;
        break;
      case ReadingKind::Blank:
        rivals.blank_columns = fit > rivals.blank ? r.block.columns : rivals.blank_columns;
        rivals.blank = std::max(rivals.blank, fit);
        break;
      case ReadingKind::Rare:
        rivals.rare = std::max(rivals.rare, fit);
        break;
      case ReadingKind::Fixed:
        rivals.fixed = std::max(rivals.fixed, fit);
        break;
      case ReadingKind::Lines:
        break;
    }
  }

  static void set_score(ReadingScore& score, Alternative const& alternative) {
    auto const measures = all_measures();
    auto const weights = all_weights();
    score.pieces.reserve(measures.size());
    for (std::size_t i = 0; i < measures.size(); ++i) {
      double const value = measures[i].value(alternative);
      if (value != 0) {
        double const amount =
            value * weights[i].of_kind.at(static_cast<std::size_t>(alternative.kind));
        score.pieces.push_back({i, value, amount});
        score.score += amount;
      }
    }
  }

  void set_shares() {
    double best = 0;
    bool is_first = true;
    for (ReadingScore const& score : result_.scores) {
      best = score.is_table && (is_first || score.score > best) ? score.score : best;
      is_first = is_first && !score.is_table;
    }
    double sum = 0;
    for (ReadingScore& score : result_.scores) {
      score.share = score.is_table ? exponential(score.score - best) : 0;
      sum += score.share;
    }
    for (ReadingScore& score : result_.scores) {
      score.share = sum == 0 ? 0 : score.share / sum;
    }
  }

  [[nodiscard]] bool is_lines(std::size_t const i) const { return i == readings_.size(); }

  /// Whether two are split at the same delimiter, or both by fixed widths, and so on.
  [[nodiscard]] bool are_split_alike(std::size_t const a, std::size_t const b) const {
    return is_lines(a) || is_lines(b) ? a == b : splits_alike(readings_[a], readings_[b]);
  }

  /// Whether two part the same values: widths may do what blanks do.
  [[nodiscard]] bool give_alike(std::size_t const a, std::size_t const b) const {
    auto const by_blanks = [&](std::size_t const i) {
      return !is_lines(i) &&
             (readings_[i].layout == Layout::SpaceAligned || readings_[i].is_read_by_blanks);
    };
    return are_split_alike(a, b) || (by_blanks(a) && by_blanks(b));
  }

  /// The share of all that are to the one at `i` as `are_alike` says.
  template <class Relation>
  [[nodiscard]] double share_of(std::size_t const i, Relation const are_alike) const {
    double share = 0;
    for (std::size_t other = 0; other < result_.scores.size(); ++other) {
      share += are_alike(i, other) ? result_.scores[other].share : 0;
    }
    return share;
  }

  [[nodiscard]] double share_of_alike(std::size_t const i) const {
    return share_of(i, [&](std::size_t const a, std::size_t const b) { return give_alike(a, b); });
  }

  /// How likely it is among those that give alike. Blanks are the simpler account of a text, so
  /// that widths that do the same have to be clearly likelier.
  [[nodiscard]] double worth(std::size_t const i) const {
    constexpr double of_blanks = 0.3;
    auto const split_alike = [&](std::size_t const a, std::size_t const b) {
      return are_split_alike(a, b);
    };
    double const share = share_of(i, split_alike);
    bool const is_by_blanks = !is_lines(i) && readings_[i].layout == Layout::SpaceAligned;
    return is_by_blanks ? share / of_blanks : share;
  }

  /// More likely in what it gives, then in how it splits, then by itself.
  [[nodiscard]] bool is_better(std::size_t const a, std::size_t const b) const {
    if (!give_alike(a, b)) {
      return share_of_alike(a) > share_of_alike(b);
    }
    return are_split_alike(a, b) ? result_.scores[a].score > result_.scores[b].score
                                 : worth(a) > worth(b);
  }

  /// The best, of those that give something else than `except`.
  [[nodiscard]] std::optional<std::size_t> best_but(std::optional<std::size_t> const except) const {
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < result_.scores.size(); ++i) {
      bool const is_left = result_.scores[i].is_table && !(except && give_alike(*except, i));
      if (is_left && (!best || is_better(i, *best))) {
        best = i;
      }
    }
    return best;
  }

  void choose(bool const is_bound) {
    auto const best = best_but(is_bound ? std::optional(readings_.size()) : std::nullopt);
    if (!best) {
      return;
    }
    result_.certainty = std::min(surest, share_of_alike(*best));
    if (!is_lines(*best)) {
      result_.winner = best;
    }
    result_.runner_up = best_but(best);
    if (result_.runner_up) {
      result_.certainty_of_runner_up = share_of_alike(*result_.runner_up);
    }
  }

  /// Where none is a table and yet one has to be it.
  [[nodiscard]] std::size_t best_fit() const {
    auto const best = std::ranges::max_element(readings_, {}, fit_of);
    return static_cast<std::size_t>(best - readings_.begin());
  }

  std::vector<Reading> const& readings_;
  TextTraits traits_;
  textio::GenericStrategy const* engine_;
  Weighing result_;
};

}  // namespace

std::vector<MeasureText> measure_texts() {
  std::vector<MeasureText> texts;
  texts.reserve(all_measures().size());
  for (Measure const& measure : all_measures()) {
    texts.push_back({measure.name, measure.meaning, measure.scale});
  }
  return texts;
}

Weighing weigh_readings(std::vector<Reading>& readings, LineIndex const& lines,
                        textio::GenericStrategy const* const engine_decision, bool const is_bound) {
  for (Reading& r : readings) {
    if (may_be_table(r) || is_bound) {
      measure_values(r, lines);
    }
  }
  return Weigher(readings, lines, engine_decision).run(is_bound);
}

}  // namespace textimport::analysis
