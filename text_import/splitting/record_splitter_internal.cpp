// SPDX-License-Identifier: MIT
//
// From one character that may mean something to the next; what stands between them is never looked
// at one by one. Bounds of fields are collected for a record and stored with it.
#include "text_import/splitting/record_splitter_internal.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "text_format_detection/reading/read_records.hpp"
#include "text_import/splitting/rulers_internal.hpp"

namespace textimport::splitting {

namespace {

using view = std::u16string_view;
using textio::enums::ConsecutiveDelimitersRule;
using textio::enums::EmptyLineRule;
using textio::enums::LeadingDelimitersRule;
using textio::enums::StrategyMode;
using textio::enums::TrailingDelimitersRule;

constexpr bool is_blank(char16_t const c) noexcept {
  return c == u' ' || c == u'\t';
}

/// The length of the first of some texts that stands at a place; 0 when none does.
std::size_t length_of_match(std::vector<std::u16string> const& texts, view const at) noexcept {
  for (std::u16string const& text : texts) {
    if (!text.empty() && at.starts_with(text)) {
      return text.size();
    }
  }
  return 0;
}

class RecordSplitter {
 public:
  RecordSplitter(textio::parser::options const& options, LineSyntax const& syntax, view const text,
                 textio::FieldArray& fields)
      : options_(options),
        syntax_(syntax),
        text_(text.substr(0, text.find(textio::end_mark))),
        fields_(fields),
        quote_(options.quote_characters.empty() ? u'\0' : options.quote_characters.front()) {
    for (auto const* const texts : {&options.line_endings, &options.delimiters}) {
      for (std::u16string const& each : *texts) {
        specials_ += each.substr(0, 1);
      }
    }
    endings_ = specials_.substr(0, options.line_endings.size());
    if (syntax.escape != 0) {
      specials_ += syntax.escape;
    }
    if (syntax.has_end_comments && !options.comment_style.empty()) {
      specials_ += options.comment_style.front().substr(0, 1);
    }
    for (char16_t const c : specials_) {
      if (c < is_special_.size()) {
        is_special_.at(c) = true;
      }
    }
  }

  void run(std::size_t const most) {
    std::size_t const wanted = most > textio::unknown_count - fields_.num_records()
                                   ? textio::unknown_count
                                   : fields_.num_records() + most;
    while (pos_ < text_.size() && fields_.num_records() < wanted) {
      line_end_ = find_line_end(pos_);
      line_start_ = pos_;
      if (skip_comment() || skip_ruler() || take_empty_line()) {
        continue;
      }
      read_record();
    }
  }

 private:
  enum class Stop : std::uint8_t { Delimiter, EndOfLine };

  [[nodiscard]] view rest(std::size_t const pos) const noexcept { return text_.substr(pos); }

  [[nodiscard]] std::size_t ending_at(std::size_t const pos) const noexcept {
    return length_of_match(options_.line_endings, rest(pos));
  }

  [[nodiscard]] std::size_t delimiter_at(std::size_t const pos) const noexcept {
    return length_of_match(options_.delimiters, rest(pos));
  }

  [[nodiscard]] std::size_t find_special(std::size_t pos) const noexcept {
    auto const is_special = [this](char16_t const c) {
      return c < is_special_.size() ? is_special_[c] : specials_.find(c) != view::npos;
    };
    while (pos < text_.size() && !is_special(text_[pos])) {
      ++pos;
    }
    return pos;
  }

  [[nodiscard]] std::size_t find_line_end(std::size_t pos) const noexcept {
    do {
      pos = std::min(text_.find_first_of(endings_, pos), text_.size());
    } while (pos < text_.size() && ending_at(pos) == 0 && ++pos < text_.size());
    return pos;
  }

  void go_behind_line(std::size_t const end) noexcept {
    pos_ = end < text_.size() ? end + ending_at(end) : end;
  }

  bool skip_comment() noexcept {
    auto const& marks = options_.comment_style;
    if (marks.empty() || marks.front().empty() || !rest(pos_).starts_with(marks.front())) {
      return false;
    }
    std::size_t end = line_end_;
    if (marks.size() == 2) {
      std::size_t const close = text_.find(marks[1], pos_ + marks[0].size());
      end = close == view::npos ? text_.size() : find_line_end(close);
    }
    go_behind_line(end);
    return true;
  }

  bool skip_ruler() noexcept {
    if (!syntax_.has_rulers || !is_ruler(text_.substr(pos_, line_end_ - pos_))) {
      return false;
    }
    go_behind_line(line_end_);
    return true;
  }

  bool take_empty_line() {
    view const line = text_.substr(pos_, line_end_ - pos_);
    if (line.find_first_not_of(options_.whitespace) != view::npos) {
      return false;
    }
    if (options_.empty_lines == EmptyLineRule::Read) {
      fields_.append_empty_record();
    }
    go_behind_line(line_end_);
    return true;
  }

  void read_record() {
    bounds_.clear();
    skip_leading();
    Stop stop = Stop::Delimiter;
    while (stop == Stop::Delimiter) {
      bool const is_rest = syntax_.rest_of_line > 0 && bounds_.size() + 1 == syntax_.rest_of_line;
      stop = is_rest ? take_rest() : take_field();
    }
    drop_trailing();
    fields_.append_record(text_.data(), bounds_);
  }

  void skip_leading() noexcept {
    if (syntax_.has_outer_bars) {
      std::size_t const first = skip_blanks(pos_);
      if (std::size_t const bar = first < line_end_ ? delimiter_at(first) : 0; bar > 0) {
        pos_ = first + bar;
        has_bar_ = true;
        return;
      }
      has_bar_ = false;
    }
    if (options_.leading_delimiters_rule == LeadingDelimitersRule::Ignore) {
      skip_delimiters();
    }
  }

  void skip_delimiters() noexcept {
    for (std::size_t n = delimiter_at(pos_); n > 0; n = delimiter_at(pos_)) {
      pos_ += n;
    }
  }

  [[nodiscard]] std::size_t skip_blanks(std::size_t pos) const noexcept {
    while (pos < text_.size() && is_blank(text_[pos]) && delimiter_at(pos) == 0) {
      ++pos;
    }
    return pos;
  }

  Stop take_field() {
    std::size_t const start = pos_;
    std::size_t pos = behind_quotes(start);
    for (;;) {
      pos = find_special(pos);
      if (pos == text_.size() || ending_at(pos) > 0) {
        return end_line(start, pos, pos);
      }
      if (syntax_.escape != 0 && text_[pos] == syntax_.escape) {
        pos = std::min(pos + 1 + std::max<std::size_t>(ending_at_or_behind(pos + 1), 1),
                       text_.size());
      } else if (is_end_comment(pos)) {
        return end_line(start, without_blanks(start, pos), find_line_end(pos));
      } else if (std::size_t const length = delimiter_at(pos); length > 0) {
        bounds_.push_back({start, pos});
        pos_ = pos + length;
        if (options_.consecutive_delimiters_rule == ConsecutiveDelimitersRule::Join) {
          skip_delimiters();
        }
        return Stop::Delimiter;
      } else {
        ++pos;
      }
    }
  }

  /// The last field: all that is left of the line, without blanks or delimiters at its end.
  Stop take_rest() {
    std::size_t const line_end = find_line_end(pos_);
    std::size_t end = line_end;
    if (syntax_.has_end_comments) {
      for (std::size_t pos = pos_; pos < line_end; ++pos) {
        if (is_end_comment(pos)) {
          end = pos;
          break;
        }
      }
    }
    return end_line(pos_, without_blanks(pos_, end), line_end);
  }

  Stop end_line(std::size_t const start, std::size_t const end, std::size_t const line_end) {
    bounds_.push_back({start, end});
    go_behind_line(line_end);
    return Stop::EndOfLine;
  }

  [[nodiscard]] std::size_t without_blanks(std::size_t const start,
                                           std::size_t end) const noexcept {
    while (end > start && is_blank(text_[end - 1])) {
      --end;
    }
    return end;
  }

  [[nodiscard]] std::size_t ending_at_or_behind(std::size_t const pos) const noexcept {
    return pos < text_.size() ? ending_at(pos) : 0;
  }

  [[nodiscard]] bool is_end_comment(std::size_t const pos) const noexcept {
    return syntax_.has_end_comments && pos > line_start_ && is_blank(text_[pos - 1]) &&
           rest(pos).starts_with(options_.comment_style.front());
  }

  /// The place behind the quotes of a field that begins with one; its start for any other.
  std::size_t behind_quotes(std::size_t const start) noexcept {
    std::size_t const open = syntax_.quotes_behind_blanks ? skip_blanks(start) : start;
    if (quote_ == 0 || open >= text_.size() || text_[open] != quote_) {
      return start;
    }
    bool const is_bound = syntax_.has_outer_bars || syntax_.has_rulers || syntax_.rest_of_line > 0;
    std::size_t const end = is_bound ? line_end_ : text_.size();
    std::size_t const close = find_close(open + 1, end);
    if (close == end) {
      quote_ = is_bound ? quote_ : u'\0';  // nor does any further one close
      return start;
    }
    return close + 1;
  }

  /// The quote that closes a field, or `end`.
  [[nodiscard]] std::size_t find_close(std::size_t pos, std::size_t const end) const noexcept {
    for (; pos < end; ++pos) {
      bool const is_doubled = text_[pos] == quote_ && pos + 1 < end && text_[pos + 1] == quote_;
      bool const is_escaped = syntax_.escape != 0 && text_[pos] == syntax_.escape;
      if (is_doubled || is_escaped) {
        ++pos;
      } else if (text_[pos] == quote_) {
        return pos;
      }
    }
    return end;
  }

  void drop_trailing() noexcept {
    if (bounds_.size() < 2) {
      return;
    }
    auto const& last = bounds_.back();
    bool const is_behind_bar =
        syntax_.has_outer_bars && has_bar_ && without_blanks(last.start, last.end) == last.start;
    bool const is_ignored = options_.trailing_delimiters_rule == TrailingDelimitersRule::Ignore &&
                            last.start == last.end;
    if (is_behind_bar || is_ignored) {
      bounds_.pop_back();
    }
  }

  textio::parser::options const& options_;
  LineSyntax const& syntax_;
  view text_;
  textio::FieldArray& fields_;
  char16_t quote_;
  std::u16string specials_;             // what may mean something begins with one of these
  std::array<bool, 128> is_special_{};  // the same for ASCII
  std::u16string endings_;              // those of line endings
  std::size_t pos_ = 0;
  std::size_t line_start_ = 0;
  std::size_t line_end_ = 0;
  bool has_bar_ = false;  // the record began with one
  std::vector<textio::FieldBounds> bounds_;
};

}  // namespace

LineSyntax line_syntax_of(Format const& format) {
  QuotingFormat const& quoting = format.quoting;
  bool const takes_rest = !format.columns.empty() && format.columns.back().is_rest_of_line;
  return {.has_outer_bars = format.region.has_outer_bars,
          .has_rulers = format.region.has_rulers,
          .escape = quoting.escape_kind == QuoteEscape::Character ? quoting.escape : u'\0',
          .has_end_comments = format.comments.at_line_ends && !format.comments.markers.empty(),
          .quotes_behind_blanks = quoting.behind_blanks,
          .rest_of_line = takes_rest ? format.columns.size() : 0};
}

void read_records(textio::parser::options const& options, StrategyMode const mode,
                  LineSyntax const& syntax, view const text, std::size_t const most,
                  textio::FieldArray& fields) {
  bool const is_split = mode == StrategyMode::Delimited || mode == StrategyMode::SpaceAligned;
  if (is_split && !is_plain(syntax)) {
    RecordSplitter(options, syntax, text, fields).run(most);
  } else {
    textio::read_records(options, mode, textio::Field(text), most, textio::unknown_count, fields);
  }
}

}  // namespace textimport::splitting
