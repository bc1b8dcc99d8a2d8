// SPDX-License-Identifier: MIT
#include "tests/text_import/format/made_formats.hpp"

#include <algorithm>
#include <array>
#include <concepts>
#include <random>
#include <type_traits>

#include "text_import/format/format_members_internal.hpp"
#include "text_import/format/words.hpp"

namespace textimport::made {
namespace {

/// Fills each member that it visits.
class Filler {
 public:
  explicit Filler(std::uint64_t const seed) : random_(seed) {}

  void operator()(char const* /*name*/, auto& member) { fill(member); }

 private:
  std::size_t below(std::size_t const bound) { return random_() % bound; }

  void fill(bool& flag) { flag = below(2) == 1; }

  void fill(char16_t& unit) {
    constexpr std::array<char16_t, 20> units{0,    u',',   u';',   u'.',   u'\'',  u'"',  u'\t',
                                             u' ', u'|',   u'\\',  u'a',   u'b',   u'9',  1,
                                             0xE9, 0x20AC, 0xD800, 0xDBFF, 0xDFFF, 0xFFFF};
    unit = units[below(units.size())];
  }

  void fill(std::u16string& text) {
    text.resize(below(4));
    for (char16_t& unit : text) {
      fill(unit);
    }
    text.append(below(8) == 0 ? u"\U0001F600" : u"");
  }

  void fill(std::string& bytes) {
    bytes.resize(below(4));
    for (char& byte : bytes) {
      byte = static_cast<char>(below(4) == 0 ? below(256) : 'a' + below(26));
    }
  }

  template <std::unsigned_integral Number>
  void fill(Number& number) {
    number = below(8) == 0 ? static_cast<Number>(random_()) : static_cast<Number>(below(100));
  }

  template <class Enum>
  requires std::is_enum_v<Enum>

  void fill(Enum& value) {
    auto const words = all_words<Enum>();
    value = words[below(words.size())].value;
  }

  template <class T>
  void fill(std::optional<T>& value) {
    value.reset();
    if (below(2) == 1) {
      fill(value.emplace());
    }
  }

  template <class T>
  void fill(std::vector<T>& list) {
    list.clear();
    for (std::size_t left = below(4); left > 0; --left) {
      fill(list.emplace_back());
    }
  }

  template <class Part>
  requires std::is_class_v<Part>

  void fill(Part& part) { visit_members(*this, part); }

  std::mt19937_64 random_;  // its numbers are the same everywhere
};

void fill_up(std::vector<std::u16string>& texts) {
  for (std::u16string& text : texts) {
    text += text.empty() ? u"x" : u"";
  }
}

void separate(char16_t const decimal, char16_t& thousands) {
  thousands = thousands == decimal ? 0 : thousands;
}

void sort_out(std::vector<std::size_t>& lines) {
  std::ranges::sort(lines);
  lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
}

void repair_region(Region& region) {
  region.table %= std::max<std::size_t>(region.num_tables, 1);
  region.num_tables = std::max<std::size_t>(region.num_tables, 1);
  if (region.end_line) {
    region.end_line = std::max(*region.end_line, region.first_line);
  }
  for (auto* const lines :
       {&region.name_lines, &region.group_lines, &region.total_lines, &region.other_lines}) {
    sort_out(*lines);
  }
}

void repair_column(Column& column, bool const is_last) {
  for (auto* const extent : {&column.code_units, &column.characters, &column.bytes}) {
    if (*extent && (*extent)->begin > (*extent)->end) {
      std::swap((*extent)->begin, (*extent)->end);
    }
  }
  separate(column.numbers.decimal_mark, column.numbers.thousands_mark);
  column.is_rest_of_line = column.is_rest_of_line && is_last;
}

void repair(Format& format) {
  fill_up(format.source.line_endings);
  if (format.source.line_endings.empty()) {
    format.source.line_endings = {u"\n"};
  }
  fill_up(format.layout.delimiters);
  if (format.layout.layout == Layout::Delimited && format.layout.delimiters.empty()) {
    format.layout.delimiters = {u"\t"};
  }
  std::ranges::replace(format.layout.widths, 0U, 1U);
  if (format.layout.layout == Layout::FixedWidth && format.layout.widths.empty()) {
    format.layout.widths = {8};
  }
  if (format.quoting.escape_kind == QuoteEscape::Character && format.quoting.escape == 0) {
    format.quoting.escape = u'\\';
  }
  fill_up(format.comments.markers);
  format.comments.markers.resize(std::min<std::size_t>(format.comments.markers.size(), 2));
  separate(format.marks.decimal_mark, format.marks.thousands_mark);
  repair_region(format.region);
  for (Column& column : format.columns) {
    repair_column(column, &column == &format.columns.back());
  }
}

Column usual_column(char16_t const* const name, ValueType const type) {
  Column column;
  column.name = name;
  column.unique_name = name;
  column.type = type;
  return column;
}

}  // namespace

Format random_format(std::uint64_t const seed) {
  Filler filler(seed);
  Format format;
  visit_members(filler, format);
  repair(format);
  return format;
}

Format usual_format() {
  Format format;
  format.source.encoding = "windows-1252";
  format.source.encoding_origin = Origin::Found;
  format.source.line_ending_counts.crlf = 7;
  format.layout.layout = Layout::Delimited;
  format.layout.delimiters = {u";"};
  format.marks.decimal_mark = u',';
  format.marks.decimal_mark_origin = Origin::Given;
  format.region.start = {StartRule::BehindLine, 1, u"day;pr\u00edce;note", Origin::Found};
  format.region.end.rule = EndRule::BlankLine;
  format.region.first_line = 3;
  format.region.end_line = 5;
  format.region.name_lines = {2};
  format.columns = {usual_column(u"day", ValueType::Date),
                    usual_column(u"pr\u00edce", ValueType::Real),
                    usual_column(u"note", ValueType::Text)};
  format.columns[0].dates.order = DateOrder::DayFirst;
  format.columns[1].numbers.decimal_mark = u',';
  format.columns[2].missing_words = {u"n/a"};
  return format;
}

}  // namespace textimport::made
