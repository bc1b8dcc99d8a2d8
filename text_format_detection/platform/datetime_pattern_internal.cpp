// SPDX-License-Identifier: MIT
//
// A format is a row of elements, each with a least and a greatest width: a literal, a number, a
// name, a zone. Where widths vary a text can be cut in several ways, and all of them are followed
// at once: behind an element the only things that tell two cuts apart are how far they have
// stretched (the units taken beyond the least widths) and in which ways their date can still exist.
// A small table indexed by the stretch holds that, so no cut is tried twice in however long a
// format.
#include "text_format_detection/platform/datetime_pattern_internal.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_format_detection/platform/datetime_parts_internal.hpp"

namespace textio::platform {
namespace {

constexpr std::size_t max_stretch = 255;
constexpr std::size_t any_run = static_cast<std::size_t>(-1);
constexpr std::size_t as_letters = 0;  // a width: as many units as the run has letters

enum class Kind {
  Literal,
  Year,
  ShortYear,
  Month,
  ShortMonthName,
  MonthName,
  Day,
  ClockNumber,
  Fraction,
  ShortWeekday,
  Weekday,
  Meridiem,
  Zone,
};

/// What a run of one pattern letter stands for.
struct FieldRule {
  char16_t letter;
  std::size_t min_run;
  std::size_t max_run;
  Kind kind;
  std::size_t min_width;
  std::size_t max_width;
  int low = 0;  // the range of a clock number
  int high = 0;
};

constexpr auto field_rules = std::to_array<FieldRule>({
    {u'y', 1, 1, Kind::Year, 4, 4},
    {u'y', 2, 2, Kind::ShortYear, 2, 2},
    {u'y', 4, 4, Kind::Year, 4, 4},
    {u'u', 1, 1, Kind::Year, 4, 4},
    {u'u', 4, 4, Kind::Year, 4, 4},
    {u'M', 1, 2, Kind::Month, as_letters, 2},
    {u'M', 3, 3, Kind::ShortMonthName, 3, 3},
    {u'M', 4, 4, Kind::MonthName, 3, 9},
    {u'd', 1, 2, Kind::Day, as_letters, 2},
    {u'H', 1, 2, Kind::ClockNumber, as_letters, 2, 0, 23},
    {u'h', 1, 2, Kind::ClockNumber, as_letters, 2, 1, 12},
    {u'm', 1, 2, Kind::ClockNumber, as_letters, 2, 0, 59},
    {u's', 1, 2, Kind::ClockNumber, as_letters, 2, 0, 59},
    {u'S', 1, any_run, Kind::Fraction, as_letters, as_letters},
    {u'E', 1, 3, Kind::ShortWeekday, 3, 3},
    {u'E', 4, 4, Kind::Weekday, 6, 9},
    {u'a', 1, 1, Kind::Meridiem, 2, 2},
    {u'X', 1, any_run, Kind::Zone, 1, 6},
    {u'x', 1, any_run, Kind::Zone, 1, 6},
    {u'Z', 1, any_run, Kind::Zone, 1, 6},
    {u'z', 1, any_run, Kind::Zone, 1, 6},
});

struct Element {
  Kind kind = Kind::Literal;
  std::size_t min_width = 1;
  std::size_t max_width = 1;
  int low = 0;
  int high = 0;
  char16_t literal = 0;
  std::size_t pos = 0;  // where it begins in the format, in code units
};

[[noreturn]] void fail(std::string const& what, std::size_t const pos, std::string const& advice) {
  throw std::invalid_argument("date-time format: " + what + " at code unit " +
                              std::to_string(pos + 1) + "; " + advice);
}

/// The elements of a format from left to right.
class FormatReader {
 public:
  explicit FormatReader(std::u16string_view const format) noexcept : format_(format) {}

  /// Reads the next element; false at the end. Throws std::invalid_argument for a wrong format.
  bool next(Element& element) {
    while (pos_ < format_.size() && format_[pos_] == u'\'' && !is_doubled_quote()) {
      quoted_ = !quoted_;
      quote_pos_ = pos_++;
    }
    if (pos_ == format_.size()) {
      if (quoted_) {
        fail("unclosed quote", quote_pos_, "close it, or write '' for a quote");
      }
      return false;
    }
    char16_t const unit = format_[pos_];
    if (!quoted_ && is_letter(unit)) {
      element = take_field(unit);
    } else {
      element = {.literal = unit, .pos = pos_};
      pos_ += unit == u'\'' ? 2 : 1;
    }
    return true;
  }

 private:
  [[nodiscard]] bool is_doubled_quote() const noexcept {
    return pos_ + 1 < format_.size() && format_[pos_ + 1] == u'\'';
  }

  Element take_field(char16_t const letter) {
    std::size_t const end = std::min(format_.find_first_not_of(letter, pos_), format_.size());
    std::size_t const run = end - pos_;
    auto const* const rule =
        std::find_if(field_rules.begin(), field_rules.end(), [letter, run](FieldRule const& r) {
          return r.letter == letter && r.min_run <= run && run <= r.max_run;
        });
    if (rule == field_rules.end()) {
      fail("unknown field of " + std::to_string(run) + " times '" + static_cast<char>(letter) + "'",
           pos_, "letters that stand for themselves go into single quotes");
    }
    Element const element = {.kind = rule->kind,
                             .min_width = rule->min_width == as_letters ? run : rule->min_width,
                             .max_width = rule->max_width == as_letters ? run : rule->max_width,
                             .low = rule->low,
                             .high = rule->high,
                             .pos = pos_};
    pos_ = end;
    return element;
  }

  std::u16string_view format_;
  std::size_t pos_ = 0;
  std::size_t quote_pos_ = 0;
  bool quoted_ = false;
};

/// What has to be known of the whole format before a text is cut by it.
struct FormatSummary {
  std::size_t min_width = 0;
  std::size_t max_width = 0;
  std::size_t last_year = 0;  // positions of elements; of a part given twice the last one counts
  std::size_t last_month = 0;
  std::size_t last_day = 0;

  void add(Element const& element) noexcept {
    min_width += element.min_width;
    max_width += element.max_width;
    if (std::size_t* const last = last_of(element.kind)) {
      *last = element.pos;
    }
  }

  /// True unless a later element gives the same part of the date.
  [[nodiscard]] bool counts(Element const& element) noexcept {
    std::size_t const* const last = last_of(element.kind);
    return last == nullptr || *last == element.pos;
  }

 private:
  std::size_t* last_of(Kind const kind) noexcept {
    switch (kind) {
      case Kind::Year:
      case Kind::ShortYear:
        return &last_year;
      case Kind::Month:
      case Kind::ShortMonthName:
      case Kind::MonthName:
        return &last_month;
      case Kind::Day:
        return &last_day;
      default:
        return nullptr;
    }
  }
};

/// Reads the whole format; throws std::invalid_argument when it is wrong.
FormatSummary summarize(std::u16string_view const format) {
  FormatSummary summary;
  FormatReader reader(format);
  Element element;
  bool has_field = false;
  while (reader.next(element)) {
    summary.add(element);
    has_field = has_field || element.kind != Kind::Literal;
    if (summary.max_width - summary.min_width > max_stretch) {
      fail("widths that vary by more than 255 code units altogether", element.pos,
           "double the letters of some fields to fix their widths");
    }
  }
  if (!has_field) {
    fail("no field", 0, "use pattern letters such as yyyy-MM-dd outside of quotes");
  }
  return summary;
}

/// The ways for a date to exist that are left when the whole piece is read as the element.
DateWays ways_of_piece(Element const& element, std::u16string_view const piece) noexcept {
  auto const if_so = [](bool const fits) { return fits ? every_way : no_way; };
  switch (element.kind) {
    case Kind::Literal:
      return if_so(piece.front() == element.literal);
    case Kind::Year:
      return ways_of_year(number_of_digits(piece));
    case Kind::ShortYear:
      return ways_of_year(year_of_two_digits(number_of_digits(piece)));
    case Kind::Month:
      return ways_of_month(number_of_digits(piece));
    case Kind::ShortMonthName:
      return ways_of_month(month_number(piece, NameForm::Abbreviation));
    case Kind::MonthName:
      return ways_of_month(month_number(piece, NameForm::Full));
    case Kind::Day:
      return ways_of_day(number_of_digits(piece));
    case Kind::ClockNumber:
      return if_so(in_range(number_of_digits(piece), element.low, element.high));
    case Kind::Fraction:
      return if_so(leading_digits(piece) == piece.size());
    case Kind::ShortWeekday:
      return if_so(is_weekday(piece, NameForm::Abbreviation));
    case Kind::Weekday:
      return if_so(is_weekday(piece, NameForm::Full));
    case Kind::Meridiem:
      return if_so(is_meridiem(piece));
    case Kind::Zone:
      return if_so(is_zone(piece));
  }
  return no_way;
}

/// All cuts of a text along the elements read so far.
class Cuts {
 public:
  explicit Cuts(std::u16string_view const text) noexcept : text_(text) { ways_[0] = every_way; }

  /// Extends every cut by the element; false when none is left. An element that does not count
  /// must still fit, but leaves the date as it is.
  bool extend(Element const& element, bool const counts) noexcept {
    DateWays any = no_way;
    // From the greatest stretch down, so that a cut never lands on one that is still to be read.
    for (std::size_t stretch = reach_ + 1; stretch-- > 0;) {
      DateWays const open = ways_[stretch];
      ways_[stretch] = no_way;
      if (open != no_way) {
        any |= extend_one(element, counts, stretch, open);
      }
    }
    least_end_ += element.min_width;
    reach_ += element.max_width - element.min_width;
    return any != no_way;
  }

  /// True when a cut takes the whole text and makes a date that exists.
  [[nodiscard]] bool complete() const noexcept {
    return least_end_ <= text_.size() && text_.size() - least_end_ <= reach_ &&
           ways_[text_.size() - least_end_] != no_way;
  }

 private:
  DateWays extend_one(Element const& element, bool const counts, std::size_t const stretch,
                      DateWays const open) noexcept {
    std::u16string_view const rest = text_.substr(least_end_ + stretch);
    std::size_t const widest = std::min(element.max_width, rest.size());
    DateWays any = no_way;
    for (std::size_t width = element.min_width; width <= widest; ++width) {
      DateWays ways = ways_of_piece(element, rest.substr(0, width));
      if (!counts && ways != no_way) {
        ways = every_way;
      }
      DateWays const left = open & ways;
      ways_[stretch + width - element.min_width] |= left;
      any |= left;
    }
    return any;
  }

  std::u16string_view text_;
  std::size_t least_end_ = 0;  // the sum of the least widths
  std::size_t reach_ = 0;      // the greatest stretch that is possible so far
  std::array<DateWays, max_stretch + 1> ways_{};
};

}  // namespace

bool matches_datetime_format(std::u16string_view const text, std::u16string_view const format) {
  FormatSummary summary = summarize(format);
  if (text.size() < summary.min_width || text.size() > summary.max_width) {
    return false;
  }
  Cuts cuts(text);
  FormatReader reader(format);
  Element element;
  while (reader.next(element)) {
    if (!cuts.extend(element, summary.counts(element))) {
      return false;
    }
  }
  return cuts.complete();
}

}  // namespace textio::platform
