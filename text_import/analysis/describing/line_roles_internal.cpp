// SPDX-License-Identifier: MIT
//
// The lines that hold something get their roles together; blank lines, rulers and comments are what
// they are wherever they stand.
#include "text_import/analysis/describing/line_roles_internal.hpp"

#include <algorithm>
#include <optional>

#include "text_import/analysis/describing/line_features_internal.hpp"
#include "text_import/analysis/describing/name_rows_internal.hpp"
#include "text_import/analysis/describing/role_sequence_internal.hpp"
#include "text_import/analysis/describing/table_lines_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"

namespace textimport::analysis {

namespace {

// Below this a part of the table may as well be another.
constexpr double decided_from = 0.7;

bool holds(std::vector<std::size_t> const& lines, std::size_t const line) {
  return std::ranges::find(lines, line) != lines.end();
}

/// The roles that a line may have by what is given.
RoleSet allowed_roles(GivenRegion const& given, std::size_t const line) {
  RoleSet roles = all_roles;
  if (given.first) {
    roles &= line < *given.first ? above_roles : static_cast<RoleSet>(all_roles & ~above_roles);
  }
  if (given.end) {
    RoleSet const note = set_of(TableRole::Note);
    roles &= line < *given.end ? static_cast<RoleSet>(all_roles & ~note) : note;
  }
  if (given.name_lines) {
    RoleSet const names = set_of(TableRole::Names);
    bool const may_be_units = !given.name_lines->empty() && line > given.name_lines->back();
    RoleSet const others = may_be_units ? all_roles : static_cast<RoleSet>(all_roles & ~names);
    roles &= holds(*given.name_lines, line) ? names : others;
  }
  return roles;
}

LineRole role_of(TableRole const role) {
  switch (role) {
    case TableRole::Title:
      return LineRole::Title;
    case TableRole::Names:
      return LineRole::Names;
    case TableRole::Data:
      return LineRole::Data;
    case TableRole::Group:
      return LineRole::Group;
    case TableRole::Total:
      return LineRole::Total;
    case TableRole::Note:
      break;
  }
  return LineRole::Footer;
}

LineRole role_of(LineKind const kind) {
  switch (kind) {
    case LineKind::Ruler:
      return LineRole::Ruler;
    case LineKind::Comment:
      return LineRole::Comment;
    case LineKind::Separator:
      return LineRole::Separator;
    case LineKind::Plain:
      return LineRole::Data;
    case LineKind::Filled:
    case LineKind::Blank:
      break;
  }
  return LineRole::Blank;
}

class RoleReader {
 public:
  RoleReader(Reading const& r, LineIndex const& lines, GivenRegion const& given,
             bool const sees_end)
      : index_(lines),
        given_(given),
        sees_end_(sees_end),
        table_(r, lines, !given.first && !given.end && !given.name_lines) {}

  LineRoles run() {
    decide();
    place_data();
    note_names();
    note_lines();
    note_reasons();
    return std::move(found_);
  }

 private:
  void decide() {
    judged_ = judge_lines(table_, sees_end_ || given_.end);
    std::vector<RoleSet> allowed;
    for (JudgedLine const& line : judged_) {
      allowed.push_back(allowed_roles(given_, table_.all()[line.position].line));
    }
    best_ = best_roles(judged_, sees_end_ || given_.end, allowed);
    doubt(TablePart::FirstLine, best_.margins.first_line);
    doubt(TablePart::LastLine, best_.margins.last_line);
    doubt(TablePart::Names, best_.margins.names);
    roles_.resize(table_.all().size());
    for (std::size_t i = 0; i < judged_.size(); ++i) {
      roles_[judged_[i].position] = role_of(told_role(judged_[i], best_.roles[i]));
    }
    entitle_first_groups();
  }

  /// A heading on top of a table without names is its title.
  void entitle_first_groups() {
    for (std::size_t i = 0; i < judged_.size(); ++i) {
      auto& role = roles_[judged_[i].position];
      if (role == LineRole::Names || role == LineRole::Data) {
        return;
      }
      role = role == LineRole::Group ? LineRole::Title : role;
    }
  }

  void doubt(TablePart const part, std::int32_t const margin) {
    double const share = share_right(margin);
    found_.certainty = std::min(found_.certainty, share);
    if (share < decided_from) {
      found_.open_parts.push_back(part);
    }
  }

  [[nodiscard]] bool is_body(std::size_t const position) const {
    auto const& role = roles_[position];
    return role == LineRole::Data || role == LineRole::Group || role == LineRole::Total;
  }

  /// The data are the lines from the first of the body to the last.
  void place_data() {
    auto const& lines = table_.all();
    std::size_t first = lines.size();
    std::size_t last = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (is_body(i)) {
        first = std::min(first, i);
        last = i;
      }
    }
    if (given_.first) {
      auto const found = std::ranges::find_if(
          lines, [&](TableLine const& line) { return line.line >= *given_.first; });
      first = static_cast<std::size_t>(found - lines.begin());
    }
    first = std::min(first, lines.size() - 1);
    last = std::max(first, last);
    found_.rows = {lines[first].record, lines[last].record};
    found_.data_starts_at = lines[first].line;
    found_.data_ends_at = std::min(lines[last].end, index_.count());
    while (found_.data_ends_at > found_.data_starts_at &&
           trimmed(index_[found_.data_ends_at - 1]).empty()) {
      --found_.data_ends_at;
    }
    first_ = first;
    last_ = last;
  }

  void note_names() {
    std::vector<std::size_t> rows;
    for (std::size_t i = 0; i < first_; ++i) {
      if (roles_[i] == LineRole::Names) {
        rows.push_back(i);
      }
    }
    std::vector<std::size_t> named = rows;
    if (given_.name_lines) {
      std::erase_if(named, [this](std::size_t const row) {
        return !holds(*given_.name_lines, table_.all()[row].line);
      });
    }
    NameRows names;
    if (!named.empty()) {
      names = read_names(table_, named, {found_.rows, given_.name_lines.has_value()});
    } else if (!given_.name_lines) {
      names = find_commented_names(table_, first_);
    } else if (!given_.name_lines->empty()) {
      names = read_commented_names(table_, given_.name_lines->front());
    }
    found_.num_columns = std::max(names.num_columns, table_.columns());
    found_.names = std::move(names.names);
    for (std::size_t const row : names.rows) {
      TableLine const& line = table_.all()[row];
      roles_[row] = LineRole::Names;
      for (std::size_t at = line.line; at < std::max(line.end, line.line + 1); ++at) {
        if (!trimmed(index_[at]).empty()) {
          found_.name_lines.push_back(at);
        }
      }
    }
    for (std::size_t const row : rows) {
      bool const is_behind = !names.rows.empty() && row > names.rows.back();
      roles_[row] = is_behind ? LineRole::Units : LineRole::Names;
    }
  }

  void note_lines() {
    auto const& lines = table_.all();
    for (std::size_t i = 0; i < lines.size(); ++i) {
      bool const is_inside = i >= first_ && i <= last_;
      LineRole const role = roles_[i].value_or(role_of(lines[i].kind));
      if (is_inside && role != LineRole::Group && role != LineRole::Total) {
        continue;
      }
      note(lines[i], role, is_inside);
    }
    // Blank lines at the end belong to no record.
    std::size_t const seen = found_.lines.empty() ? 0 : found_.lines.back().line + 1;
    for (std::size_t line = std::max(seen, found_.data_ends_at); line < index_.count(); ++line) {
      found_.lines.push_back({line, LineRole::Blank});
    }
  }

  void note(TableLine const& line, LineRole const role, bool const is_inside) {
    std::size_t const limit =
        is_inside || line.line >= found_.data_starts_at ? index_.count() : found_.data_starts_at;
    for (std::size_t at = line.line; at < std::min(line.end, limit); ++at) {
      bool const is_blank = trimmed(index_[at]).empty();
      if (is_inside && (is_blank || at >= found_.data_ends_at)) {
        break;
      }
      found_.lines.push_back({at, is_blank ? LineRole::Blank : role});
      if (is_inside) {
        (role == LineRole::Group ? found_.group_lines : found_.total_lines).push_back(at);
      }
    }
  }

  /// Of a text with many lines around the data the first and the last are told.
  void note_reasons() {
    constexpr std::size_t most_above = 40;
    for (std::size_t i = 0; i < judged_.size(); ++i) {
      std::size_t const position = judged_[i].position;
      LineRole const role = roles_[position].value_or(LineRole::Data);
      bool const is_edge = position == first_ || position == last_;
      bool const is_far = i > most_above && i + most_above < judged_.size();
      if (!is_edge && (role == LineRole::Data || is_far)) {
        continue;
      }
      found_.reasons.push_back({table_.all()[position].line, role,
                                reasons_for(judged_[i], best_.roles[i], best_.rivals[i])});
    }
  }

  LineIndex const& index_;
  GivenRegion const& given_;
  bool sees_end_;
  TableLines table_;
  std::vector<JudgedLine> judged_;
  RoleSequence best_;
  std::vector<std::optional<LineRole>> roles_;  ///< of the lines that hold something
  std::size_t first_ = 0;
  std::size_t last_ = 0;
  LineRoles found_;
};

}  // namespace

LineRoles decide_roles(Reading const& r, LineIndex const& lines, GivenRegion const& given,
                       bool const sees_end) {
  return RoleReader(r, lines, given, sees_end).run();
}

}  // namespace textimport::analysis
