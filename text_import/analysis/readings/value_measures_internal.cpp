// SPDX-License-Identifier: MIT
//
// One walk over the sampled records for the looks of the values, one for where they stand.
#include "text_import/analysis/readings/value_measures_internal.hpp"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::Field;
using textio::platform::is_digit;
using view = std::u16string_view;
using Record = std::span<Field const>;

double share_of(std::size_t const part, std::size_t const whole) {
  return whole == 0 ? 0 : static_cast<double>(part) / static_cast<double>(whole);
}

double weight_of(ValueLook const& look) noexcept {
  if (look.quoted || is_typed(look.shape)) {
    return 1.0;
  }
  switch (look.shape) {
    case ValueShape::Missing:
      return 0.9;
    case ValueShape::Word:
      return 0.8;
    case ValueShape::Phrase:
      return 0.6;
    default:
      return 0.0;
  }
}

/// Kinds of values that a column does not mix.
enum class Kind : std::uint8_t { Number, Moment, Text, Broken, Missing, Empty };

Kind kind_of(ValueShape const shape) noexcept {
  switch (shape) {
    case ValueShape::Empty:
      return Kind::Empty;
    case ValueShape::Missing:
      return Kind::Missing;
    case ValueShape::Date:
    case ValueShape::DateTime:
    case ValueShape::Duration:
      return Kind::Moment;
    case ValueShape::Boolean:
    case ValueShape::Word:
    case ValueShape::Phrase:
      return Kind::Text;
    case ValueShape::Broken:
      return Kind::Broken;
    default:
      return Kind::Number;
  }
}

// Enough to judge a reading by; what the rest would add is not worth its time.
constexpr std::size_t records_judged = 32;
constexpr std::size_t columns_judged = 40;

/// The positions of the regular records that are looked at, in their order.
std::vector<std::size_t> sampled_records(Reading const& r) {
  std::vector<std::size_t> sampled;
  std::size_t const step = 1 + r.block.regular / records_judged;
  std::size_t regular = 0;
  for (std::size_t i = r.block.first; i <= r.block.last && i < r.records.size(); ++i) {
    if (r.records[i].num_fields == r.block.columns && regular++ % step == 0) {
      sampled.push_back(i);
    }
  }
  return sampled;
}

/// What the values are.
class ValueCount {
 public:
  explicit ValueCount(Reading& r)
      : reading_(r), columns_(std::min(r.block.columns, columns_judged)) {}

  void run(std::vector<std::size_t> const& records) {
    for (std::size_t const i : records) {
      bool const is_first = i == records.front() && reading_.block.regular > 2;
      add_record(reading_.strategy->field_array()->record(i), is_first);
    }
    set_shares(records.size());
  }

 private:
  struct ColumnCount {
    std::array<std::size_t, 4> kinds{};  // of values that are no names, up to Kind::Broken
    std::size_t filled = 0;
    std::size_t typed = 0;
    std::size_t names = 0;  // texts in the first record
  };

  void add_record(Record const record, bool const may_be_names) {
    std::size_t const count = std::min(columns_.size(), record.size());
    for (std::size_t column = 0; column < count; ++column) {
      view const text = record[column].view();
      ValueLook const look = reading_.values.look_at(text);
      add(columns_[column], look, may_be_names);
      has_blank_ += look.shape == ValueShape::Phrase || look.shape == ValueShape::Broken
                        ? trimmed(text).find(u' ') != view::npos
                        : 0U;
    }
    open_ends_ += !record.empty() && trimmed(record.back().view()).empty() ? 1U : 0U;
  }

  void add(ColumnCount& column, ValueLook const& look, bool const may_be_name) {
    ++looked_at_;
    Kind const kind = kind_of(look.shape);
    if (kind == Kind::Empty) {
      return;
    }
    bool const is_value = is_typed(look.shape) || look.shape == ValueShape::Missing;
    ++filled_;
    weights_ += weight_of(look);
    broken_ += kind == Kind::Broken ? 1U : 0U;
    ++column.filled;
    column.typed += is_value ? 1U : 0U;
    column.names += may_be_name && !is_value ? 1U : 0U;
    if (!may_be_name && kind != Kind::Missing) {
      ++column.kinds[static_cast<std::size_t>(kind)];
    }
  }

  void set_shares(std::size_t const num_records) {
    std::size_t typed = 0;
    std::size_t names = 0;
    for (ColumnCount const& column : columns_) {
      typed += column.typed;
      reading_.filled_columns += column.filled > 0 ? 1U : 0U;
      bool const is_typed_column =
          column.typed > 0 && column.typed * 5 >= (column.filled - column.names) * 4;
      reading_.typed_columns += is_typed_column ? 1U : 0U;
      names += is_typed_column ? column.names : 0U;
    }
    reading_.has_names = names > 0 && names * 2 >= reading_.typed_columns;
    reading_.empty_share = 1 - share_of(filled_, looked_at_);
    reading_.soundness = filled_ == 0 ? 0 : weights_ / static_cast<double>(filled_);
    reading_.broken_share = share_of(broken_, filled_);
    reading_.typed_share = share_of(typed, filled_);
    reading_.inner_blank_share = share_of(has_blank_, filled_);
    reading_.open_end_share = share_of(open_ends_, num_records);
    reading_.mixed_share = mixed_share();
  }

  [[nodiscard]] double mixed_share() const {
    std::size_t all = 0;
    std::size_t usual = 0;
    for (ColumnCount const& column : columns_) {
      for (std::size_t const count : column.kinds) {
        all += count;
      }
      usual += *std::ranges::max_element(column.kinds);
    }
    return all == 0 ? 0 : 1 - share_of(usual, all);
  }

  Reading& reading_;
  std::vector<ColumnCount> columns_;
  std::size_t looked_at_ = 0;
  std::size_t filled_ = 0;
  std::size_t broken_ = 0;
  std::size_t has_blank_ = 0;
  std::size_t open_ends_ = 0;
  double weights_ = 0;
};

/// Where the values stand in their lines.
class PlaceCount {
 public:
  PlaceCount(Reading& r, LineIndex const& lines)
      : reading_(r), lines_(lines), columns_(std::min(r.block.columns, columns_judged)) {}

  void run(std::vector<std::size_t> const& records) {
    bool const is_fixed = reading_.layout == Layout::FixedWidth;
    for (std::size_t const i : records) {
      Record const record = reading_.strategy->field_array()->record(i);
      is_fixed ? add_widths(reading_.records[i].line)
               : add_blanks(record, reading_.records[i].line);
    }
    reading_.torn_share = share_of(torn_, cuts_);
    reading_.wide_gap_share = share_of(wide_gaps_, cuts_);
    reading_.aligned_share = share_of(aligned(), compared_);
  }

 private:
  struct ColumnPlace {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t same_begin = 0;
    std::size_t same_end = 0;
  };

  /// The fields between blanks of a line.
  void add_blanks(Record const record, std::size_t const line) {
    char16_t const* const start = lines_.text().data() + lines_.start(line);
    std::size_t const count = std::min(columns_.size(), record.size());
    for (std::size_t i = 1; i < count; ++i) {
      auto const begin = static_cast<std::size_t>(record[i].data() - start);
      std::size_t const end = begin + record[i].length();
      view const before(start, begin);
      ++cuts_;
      wide_gaps_ += before.ends_with(u"  ") || before.ends_with(u'\t') ? 1U : 0U;
      ColumnPlace& column = columns_[i];
      if (has_record_) {
        ++compared_;
        column.same_begin += begin == column.begin ? 1U : 0U;
        column.same_end += end == column.end ? 1U : 0U;
      }
      column.begin = begin;
      column.end = end;
    }
    has_record_ = true;
  }

  /// The columns of fixed width in a line.
  void add_widths(std::size_t const line) {
    view const text = lines_[line];
    std::size_t end = 0;
    for (std::size_t const width : reading_.strategy->options().column_widths) {
      end += width;
      if (end >= text.size()) {
        return;
      }
      ++cuts_;
      torn_ += text[end - 1] != u' ' && text[end] != u' ' ? 1U : 0U;
    }
  }

  [[nodiscard]] std::size_t aligned() const {
    std::size_t sum = 0;
    for (ColumnPlace const& column : columns_) {
      sum += std::max(column.same_begin, column.same_end);
    }
    return sum;
  }

  Reading& reading_;
  LineIndex const& lines_;
  std::vector<ColumnPlace> columns_;
  bool has_record_ = false;
  std::size_t cuts_ = 0;
  std::size_t torn_ = 0;
  std::size_t wide_gaps_ = 0;
  std::size_t compared_ = 0;
};

/// "...:01" in front of "250 INFO": logs write the fraction of a second behind a comma.
bool splits_seconds(Record const record) {
  if (record.size() < 2) {
    return false;
  }
  view const first = record[0].view();
  view const second = record[1].view();
  bool const ends_in_seconds = first.size() >= 8 && first[first.size() - 3] == u':' &&
                               is_digit(first[first.size() - 2]) && is_digit(first.back());
  return ends_in_seconds && second.size() > 3 &&
         std::all_of(second.begin(), second.begin() + 3, is_digit) && !is_digit(second[3]);
}

/// Whether one of the first two values ends in a colon that only a blank follows, or the second
/// begins with an equals sign: settings, or a record written downwards.
bool is_key_and_value(Record const record, bool const at_blanks) {
  std::size_t filled = 0;
  for (Field const& field : record) {
    view const text = trimmed(field.view());
    if (text.empty()) {
      continue;
    }
    bool const ends_key = text.back() == u':' && at_blanks;
    if (++filled > 2 || ends_key || (filled == 2 && text.front() == u'=')) {
      return filled <= 2;
    }
  }
  return false;
}

void count_cut_texts(Reading& r, std::vector<std::size_t> const& records) {
  bool const at_blanks = r.layout == Layout::SpaceAligned || r.delimiter == u" ";
  std::size_t seconds = 0;
  std::size_t keys = 0;
  for (std::size_t const i : records) {
    Record const record = r.strategy->field_array()->record(i);
    seconds += r.delimiter == u"," && splits_seconds(record) ? 1U : 0U;
    keys += is_key_and_value(record, at_blanks) ? 1U : 0U;
  }
  r.seconds_share = share_of(seconds, records.size());
  r.key_share = share_of(keys, records.size());
}

}  // namespace

void measure_values(Reading& r, LineIndex const& lines) {
  if (r.block.regular == 0) {
    return;
  }
  auto const records = sampled_records(r);
  ValueCount(r).run(records);
  bool const is_placed = r.layout != Layout::Delimited || r.delimiter == u" ";
  if (is_placed) {
    PlaceCount(r, lines).run(records);
  }
  if (r.layout != Layout::FixedWidth) {
    count_cut_texts(r, records);
  }
}

}  // namespace textimport::analysis
