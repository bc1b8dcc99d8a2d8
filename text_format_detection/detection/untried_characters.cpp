// SPDX-License-Identifier: MIT
//
// Which characters stand in the text, and why each was left aside. Texts may be long and hold as
// many characters as there are: each code unit is looked at once and marked in a table, and only
// where surrogates were met are they put together in a second pass.
#include "text_format_detection/detection/untried_characters.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "text_format_detection/detection/candidate_characters_internal.hpp"
#include "text_format_detection/model/text_view_internal.hpp"
#include "text_format_detection/model/unit_search_internal.hpp"

namespace textio::detection {

namespace {

constexpr std::size_t num_ascii = 128;
constexpr std::size_t num_units = 0x10000;
constexpr char16_t first_lead = 0xD800;
constexpr char16_t first_trail = 0xDC00;
constexpr char16_t behind_trails = 0xE000;
constexpr unsigned bits_of_trail = 10;

/// For each code unit, whether it was met: a string, because those are searched fast.
using MetUnits = std::string;
constexpr char is_met = 1;

bool is_pair(std::u16string_view const text, std::size_t const pos) {
  char16_t const next = model::unit_at(text, pos + 1);
  return text[pos] >= first_lead && text[pos] < first_trail && next >= first_trail &&
         next < behind_trails;
}

/// The distinct characters that two surrogates make, ascending. Leaves in `met` the surrogates that
/// stand alone somewhere.
std::vector<char32_t> take_pairs(std::u16string_view const text, MetUnits& met) {
  std::fill(met.begin() + first_lead, met.begin() + behind_trails, char{0});
  std::vector<bool> known(std::size_t{first_trail - first_lead} << bits_of_trail);
  std::vector<char32_t> pairs;
  for (std::size_t pos = 0; pos < text.size(); ++pos) {
    if (!is_pair(text, pos)) {
      met[text[pos]] = is_met;
      continue;
    }
    char32_t const lead = text[pos] - first_lead;
    char32_t const index = (lead << bits_of_trail) + (text[++pos] - first_trail);
    if (!known[index]) {
      known[index] = true;
      pairs.push_back(num_units + index);
    }
  }
  std::sort(pairs.begin(), pairs.end());
  return pairs;
}

/// The distinct characters of the text, ascending; a surrogate that stands alone is one.
std::vector<char32_t> distinct_characters(std::u16string_view const text) {
  MetUnits met(num_units, char{0});
  char* const marks = met.data();
  for (char16_t const unit : text) {
    marks[unit] = is_met;
  }
  bool const has_leads = met.find(is_met, first_lead) < first_trail;
  std::vector<char32_t> const pairs = has_leads ? take_pairs(text, met) : std::vector<char32_t>{};
  std::vector<char32_t> characters;
  for (std::size_t unit = met.find(is_met); unit < num_units; unit = met.find(is_met, unit + 1)) {
    characters.push_back(static_cast<char32_t>(unit));
  }
  characters.insert(characters.end(), pairs.begin(), pairs.end());
  return characters;
}

/// For each ASCII character, whether it stood between the fields of a strategy.
std::array<bool, num_ascii> tried_characters(std::vector<SampledStrategy> const& sampled) {
  std::array<bool, num_ascii> tried{};
  for (SampledStrategy const& entry : sampled) {
    if (entry.strategy->mode() == enums::StrategyMode::FixedWidth) {
      continue;
    }
    for (std::u16string const& delimiter : entry.strategy->options().delimiters) {
      tried[delimiter.front()] = true;  // the candidates of a decision are single and ASCII
    }
  }
  return tried;
}

NotTried reason_for(char32_t const character, parser::options const& options) {
  if (character >= num_ascii) {
    return NotTried::NotAscii;
  }
  auto const unit = static_cast<char16_t>(character);
  if (unit == options.decimal_separator) {
    return NotTried::DecimalMark;
  }
  if (unit == model::unit_at(options.thousands_separator, 0)) {
    return NotTried::ThousandsMark;
  }
  return may_be_delimiter(unit) ? NotTried::OutsideMiddle : NotTried::NeverDelimiter;
}

/// Letters, digits and line ends: that they were not tried goes without saying.
bool is_unremarkable(char32_t const c) {
  return (c >= U'0' && c <= U'9') || (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z') ||
         c == U'\n' || c == U'\r';
}

}  // namespace

std::vector<UntriedCharacter> untried_characters(std::u16string_view const sample,
                                                 DetectionReport const& report) {
  auto const text =
      sample.substr(0, model::UnitSearch(sample, std::u16string_view(&end_mark, 1)).find(0));
  auto const tried = tried_characters(report.sampled);
  parser::options const& options = report.line_reader->options();
  std::vector<UntriedCharacter> untried;
  for (char32_t const c : distinct_characters(text)) {
    if (!is_unremarkable(c) && !(c < num_ascii && tried[c])) {
      untried.push_back({c, reason_for(c, options)});
    }
  }
  return untried;
}

}  // namespace textio::detection
