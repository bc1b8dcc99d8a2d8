// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/refinements_internal.hpp"

#include <algorithm>
#include <optional>
#include <tuple>

#include "text_format_detection/model/field_array.hpp"
#include "text_import/analysis/values/text_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

/// Whether a field opens a quote that does not close at its end, or closes before it: what is left
/// of a value that was cut, or whose inner quotes are written in another manner.
bool is_torn(view const field, char16_t const quote, char16_t const escape) {
  view const text = trimmed(field);
  if (!text.starts_with(quote)) {
    return false;
  }
  for (std::size_t pos = 1; pos < text.size(); ++pos) {
    bool const is_doubled = text[pos] == quote && pos + 1 < text.size() && text[pos + 1] == quote;
    if (is_doubled || (escape != 0 && text[pos] == escape)) {
      ++pos;
    } else if (text[pos] == quote) {
      return pos + 1 < text.size();
    }
  }
  return true;
}

std::size_t count_torn(Reading const& r) {
  if (r.quote == 0) {
    return 0;
  }
  auto const& fields = r.strategy->field_array()->fields();
  return static_cast<std::size_t>(std::ranges::count_if(fields, [&](textio::Field const& field) {
    return is_torn(field.view(), r.quote, r.syntax.escape);
  }));
}

/// Records that are no part of the table, and fields that do not hold together.
std::size_t count_unexplained(Reading const& r) {
  return r.filled_records - std::min(r.filled_records, r.block.regular) + count_torn(r);
}

/// How much a guess is believed where it explains as much as others: what the text shows, such as
/// borders, comes before the plain reading, and that before anything else.
int rank_of(LineSyntax const& guessed) {
  bool const is_shown = guessed.has_outer_bars || guessed.has_rulers || guessed.has_end_comments;
  return is_shown ? 0 : is_plain(guessed) ? 1 : 2;
}

/// The readings at one delimiter under hypotheses that differ in the syntax of lines only.
class Family {
 public:
  Family(std::vector<AssumedOptions> const& hypotheses, Reading const& member)
      : hypotheses_(hypotheses), member_(member), base_(base_of(member)) {}

  [[nodiscard]] bool holds(Reading const& r) const {
    return r.layout == member_.layout && r.delimiter == member_.delimiter && base_of(r) == base_;
  }

  /// The hypothesis under which a member explains most of the text; of equal ones the one that is
  /// believed more, and then the first.
  [[nodiscard]] std::size_t best_hypothesis(std::vector<Reading> const& readings) const {
    using Key = std::tuple<std::size_t, int, std::size_t>;
    std::optional<Key> best;
    for (Reading const& r : readings) {
      if (holds(r) && r.block.columns >= 2) {
        Key const key{count_unexplained(r), rank_of(hypotheses_[r.hypothesis].hypothesis.syntax),
                      r.hypothesis};
        best = best ? std::min(*best, key) : key;
      }
    }
    return best ? std::get<2>(*best) : base_;
  }

 private:
  [[nodiscard]] std::size_t base_of(Reading const& r) const {
    return is_plain(hypotheses_[r.hypothesis].hypothesis.syntax)
               ? r.hypothesis
               : hypotheses_[r.hypothesis].refined;
  }

  std::vector<AssumedOptions> const& hypotheses_;
  Reading const& member_;
  std::size_t base_;
};

}  // namespace

void settle_refinements(std::vector<Reading>& readings,
                        std::vector<AssumedOptions> const& hypotheses) {
  std::vector<bool> falls(readings.size(), false);
  for (std::size_t i = 0; i < readings.size(); ++i) {
    if (falls[i] || is_plain(hypotheses[readings[i].hypothesis].hypothesis.syntax)) {
      continue;
    }
    Family const family(hypotheses, readings[i]);
    std::size_t const best = family.best_hypothesis(readings);
    for (std::size_t other = 0; other < readings.size(); ++other) {
      falls[other] =
          falls[other] || (readings[other].hypothesis != best && family.holds(readings[other]));
    }
  }
  std::size_t position = 0;
  std::erase_if(readings, [&](Reading const&) { return falls[position++]; });
}

}  // namespace textimport::analysis
