// SPDX-License-Identifier: MIT
//
// Two passes: the best score of a beginning that ends with a role, and of an end that begins behind
// one. Together they say for each line and role what the best sequence through them is worth.
#include "text_import/analysis/describing/role_sequence_internal.hpp"

#include <algorithm>
#include <functional>
#include <limits>

#include "text_import/analysis/describing/role_weights_internal.hpp"

namespace textimport::analysis {

namespace {

constexpr std::int32_t impossible = std::numeric_limits<std::int32_t>::min() / 4;

/// Title, names, body, note.
std::size_t part_of(std::size_t const role) noexcept {
  constexpr std::array<std::size_t, num_table_roles> parts{0, 1, 2, 2, 2, 3};
  return parts[role];
}

/// A note stands behind some of the body; elsewhere the order of the parts holds.
bool may_follow(std::size_t const role, std::size_t const last) noexcept {
  bool const is_note_on_top = part_of(role) == 3 && part_of(last) < 2;
  return part_of(role) >= part_of(last) && !is_note_on_top;
}

using Steps = std::array<RoleScores, num_table_roles>;

/// What the steps from each role to each other are worth.
Steps steps_of(Steps const& weights) noexcept {
  Steps steps{};
  for (std::size_t from = 0; from < num_table_roles; ++from) {
    for (std::size_t to = 0; to < num_table_roles; ++to) {
      steps[from][to] = may_follow(to, from) ? weights[from][to] : impossible;
    }
  }
  return steps;
}

/// A feature that is younger than the table says nothing: its weights are made with its help.
RoleScores weights_of(LineFeature const feature) noexcept {
  auto const row = static_cast<std::size_t>(feature);
  return row < role_weights.size() ? role_weights[row] : RoleScores();
}

class RolePath {
 public:
  RolePath(std::vector<JudgedLine> const& lines, bool const sees_end,
           std::vector<RoleSet> const& allowed)
      : lines_(lines), scores_(lines.size()), before_(lines.size()), behind_(lines.size()) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      scores_[i] = score_of(lines[i]);
      RoleSet roles = allowed.empty() ? all_roles : allowed[i];
      roles = static_cast<RoleSet>(sees_end ? roles : roles & ~set_of(TableRole::Note));
      for (std::size_t role = 0; role < num_table_roles; ++role) {
        if ((static_cast<unsigned>(roles) >> role & 1U) == 0) {
          scores_[i][role] = impossible;
        }
      }
    }
  }

  RoleSequence run() {
    walk_down();
    walk_up();
    RoleSequence found;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      RoleScores through{};
      for (std::size_t role = 0; role < num_table_roles; ++role) {
        through[role] = std::max(before_[i][role] + behind_[i][role], impossible);
      }
      found.roles.push_back(best_of(i, through, found.roles));
      found.rivals.push_back(rival_of(found.roles.back(), through));
      take_margin(found, through);
    }
    return found;
  }

 private:
  [[nodiscard]] std::int32_t step(std::size_t const i, std::size_t const from,
                                  std::size_t const to) const {
    return (lines_[i].blank_before ? steps_over_blanks_ : steps_)[from][to];
  }

  void walk_down() {
    for (std::size_t role = 0; role < num_table_roles; ++role) {
      bool const may_begin = part_of(role) < 3;
      before_[0][role] = may_begin ? scores_[0][role] : impossible;
    }
    for (std::size_t i = 1; i < lines_.size(); ++i) {
      for (std::size_t role = 0; role < num_table_roles; ++role) {
        std::int32_t best = impossible;
        for (std::size_t last = 0; last < num_table_roles; ++last) {
          best = std::max(best, before_[i - 1][last] + step(i, last, role));
        }
        before_[i][role] = std::max(best + scores_[i][role], impossible);
      }
    }
  }

  void walk_up() {
    std::size_t const end = lines_.size() - 1;
    for (std::size_t role = 0; role < num_table_roles; ++role) {
      behind_[end][role] = part_of(role) >= 2 ? 0 : impossible;
    }
    for (std::size_t i = end; i-- > 0;) {
      for (std::size_t role = 0; role < num_table_roles; ++role) {
        std::int32_t best = impossible;
        for (std::size_t next = 0; next < num_table_roles; ++next) {
          best =
              std::max(best, behind_[i + 1][next] + scores_[i + 1][next] + step(i + 1, role, next));
        }
        behind_[i][role] = std::max(best, impossible);
      }
    }
  }

  /// The role of a line on the best sequence: of several that are equally good one that may follow
  /// the line before.
  [[nodiscard]] TableRole best_of(std::size_t const i, RoleScores const& through,
                                  std::vector<TableRole> const& roles) const {
    std::int32_t best = impossible;
    auto found = TableRole::Data;
    for (std::size_t role = 0; role < num_table_roles; ++role) {
      std::int32_t score = through[role];
      if (i > 0) {
        auto const last = static_cast<std::size_t>(roles.back());
        score = std::max(step(i, last, role) + scores_[i][role] + behind_[i][role], impossible);
      }
      if (score > best) {
        best = score;
        found = static_cast<TableRole>(role);
      }
    }
    return found;
  }

  static TableRole rival_of(TableRole const role, RoleScores through) {
    through[static_cast<std::size_t>(role)] = impossible;
    return static_cast<TableRole>(std::ranges::max_element(through) - through.begin());
  }

  static void take_margin(RoleSequence& found, RoleScores const& through) {
    std::array<std::int32_t, 4> parts{impossible, impossible, impossible, impossible};
    for (std::size_t role = 0; role < num_table_roles; ++role) {
      parts[part_of(role)] = std::max(parts[part_of(role)], through[role]);
    }
    std::size_t const own = part_of(static_cast<std::size_t>(found.roles.back()));
    for (std::size_t part = 0; part < parts.size(); ++part) {
      if (part != own && parts[part] > impossible) {
        std::int32_t& margin = margin_between(found.margins, std::min(own, part), part + own);
        margin = std::min(margin, parts[own] - parts[part]);
      }
    }
  }

  /// What is another when a line is of another part: `sum` is that of both parts' numbers.
  static std::int32_t& margin_between(RoleMargins& margins, std::size_t const lower,
                                      std::size_t const sum) {
    if (lower == 2) {
      return margins.last_line;
    }
    return sum == 1 ? margins.names : margins.first_line;
  }

  std::vector<JudgedLine> const& lines_;
  Steps steps_ = steps_of(transitions);
  Steps steps_over_blanks_ = steps_of(transitions_over_blanks);
  std::vector<RoleScores> scores_;
  std::vector<RoleScores> before_;
  std::vector<RoleScores> behind_;
};

}  // namespace

RoleScores score_of(JudgedLine const& line) noexcept {
  RoleScores scores{};
  for (LineFeature const feature : line.features) {
    RoleScores const weights = weights_of(feature);
    for (std::size_t role = 0; role < num_table_roles; ++role) {
      scores[role] += weights[role];
    }
  }
  return scores;
}

RoleSequence best_roles(std::vector<JudgedLine> const& lines, bool const sees_end,
                        std::vector<RoleSet> const& allowed) {
  return lines.empty() ? RoleSequence() : RolePath(lines, sees_end, allowed).run();
}

TableRole told_role(JudgedLine const& line, TableRole const role) noexcept {
  auto const has_any = [&line](auto const... features) {
    return std::ranges::any_of(
        line.features, [&](LineFeature const feature) { return ((feature == features) || ...); });
  };
  using enum LineFeature;
  bool const is_kept = role == TableRole::Group
                           ? has_any(OneCellFirst, OneCellOther, OneCellOfTwo, TwoCells, Undivided)
                           : role != TableRole::Total || has_any(TotalWord, SumAbove, SumBelow);
  return is_kept ? role : TableRole::Data;
}

std::vector<std::string_view> reasons_for(JudgedLine const& line, TableRole const role,
                                          TableRole const rival) {
  constexpr std::size_t most = 3;
  constexpr std::int32_t least = 8;

  struct Reason {
    std::int32_t weight = 0;
    std::string_view sentence;
  };

  std::vector<Reason> found;
  for (LineFeature const feature : line.features) {
    RoleScores const weights = weights_of(feature);
    std::int32_t const weight =
        weights[static_cast<std::size_t>(role)] - weights[static_cast<std::size_t>(rival)];
    std::string_view const sentence = feature_texts[static_cast<std::size_t>(feature)].sentence;
    if (weight >= least && !sentence.empty()) {
      found.push_back({weight, sentence});
    }
  }
  std::ranges::stable_sort(found, std::greater(), &Reason::weight);
  std::vector<std::string_view> sentences;
  for (std::size_t i = 0; i < std::min(most, found.size()); ++i) {
    sentences.push_back(found[i].sentence);
  }
  return sentences;
}

double share_right(std::int32_t const margin) noexcept {
  constexpr double thousand = 1000;
  auto const behind = std::ranges::find_if(
      margin_shares, [margin](MarginShare const& share) { return share.margin > margin; });
  if (behind == margin_shares.begin()) {
    return margin_shares.front().right / thousand;
  }
  auto const before = behind - 1;
  if (behind == margin_shares.end()) {
    return before->right / thousand;
  }
  double const way = static_cast<double>(margin - before->margin) /
                     static_cast<double>(behind->margin - before->margin);
  return (before->right + way * (behind->right - before->right)) / thousand;
}

}  // namespace textimport::analysis
